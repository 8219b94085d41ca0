#pragma once

#include <QTime>

namespace tessaline {

struct ReadingOptions;

enum class PaceStep { faster, slower };

/// Makes what the pace goes by a step faster or slower: the words a minute, the minutes to the
/// end, or the time of the end, which does not step back behind `now` and so to tomorrow. In mode
/// speed nothing changes. The limits are for whoever keeps the options.
void stepPace(ReadingOptions& options, PaceStep step, QTime now);

} // namespace tessaline

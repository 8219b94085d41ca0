#pragma once

#include <QString>

namespace tessaline {

/// What a Markdown script is called: its first heading without markers, or the program's name when
/// it has none. Any thread.
QString scriptTitle(QStringView content);

} // namespace tessaline

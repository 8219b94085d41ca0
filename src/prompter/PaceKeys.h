#pragma once

class QKeyEvent;

namespace tessaline {

class ReadingSettings;

/// Steps what the pace goes by if the key is one for that, which is plus or minus while it does not
/// go by the speed. Whether it was.
bool stepPaceByKey(const QKeyEvent& event, ReadingSettings& settings);

} // namespace tessaline

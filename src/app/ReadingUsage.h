#pragma once

#include "settings/ReadingSettings.h"

namespace tessaline {

class UsageRecorder;

/// Records which reading options the user changes, by whichever way.
class ReadingUsage {
public:
    /// Borrows both.
    ReadingUsage(ReadingSettings& settings, UsageRecorder& recorder);

private:
    ReadingSettings::Observation observation;
};

} // namespace tessaline

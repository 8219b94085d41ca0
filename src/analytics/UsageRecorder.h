#pragma once

#include "settings/SourceType.h"

#include <QtGlobal>

namespace tessaline {

/// Receives usage events. Any thread.
class UsageRecorder {
public:
    virtual ~UsageRecorder() = default;

    /// A source delivered a text of so many words: the event "content_loaded".
    virtual void trackContentLoaded(SourceType source, qsizetype wordCount) = 0;
};

} // namespace tessaline

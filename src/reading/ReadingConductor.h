#pragma once

#include "settings/ReadingSettings.h"

#include <memory>

namespace tessaline {

class AppSettings;
class PositionSource;
class ReadingSession;
struct Platform;

/// Sees to it that a session is moved as the user's options say: by the source for the pace, and at
/// the end of the text. Follows the options from then on.
class ReadingConductor {
public:
    /// Everything is borrowed, and outlives this.
    ReadingConductor(AppSettings& settings, ReadingSettings& options,
                     const std::shared_ptr<ReadingSession>& session, const Platform& platform);
    ~ReadingConductor();
    ReadingConductor(const ReadingConductor&) = delete;
    ReadingConductor& operator=(const ReadingConductor&) = delete;

private:
    std::unique_ptr<PositionSource> sourceForPace() const;
    void optionsChanged(const ReadingOptions& before);
    void endReached();

    AppSettings& settings;
    ReadingSettings& options;
    const std::shared_ptr<ReadingSession> session;
    const Platform& platform;
    ReadingSettings::Observation observation;
};

} // namespace tessaline

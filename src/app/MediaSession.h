#pragma once

#include "platform/MediaControls.h"
#include "settings/AppSettings.h"
#include "settings/ReadingSettings.h"

#include <QString>

#include <memory>
#include <optional>

namespace tessaline {

class AppDelegate;
class RepeatingTimer;
class TimerMaker;
struct Platform;
struct Script;

/// Lets media keys and the desktop's player widgets drive the prompter, while the user wants that
/// and a script is shown: auto-scroll is what plays, headings are its chapters, and the pace is its
/// rate.
class MediaSession final : private MediaControls::Player {
public:
    /// The rate of 1 in words a minute, and as a speed.
    static constexpr double usualWordsPerMinute = 150.0;
    static constexpr double usualSpeed = PersistedSettings::defaultResumeSpeed;

    /// The slowest that they set.
    static constexpr double leastSpeed = 0.25;

    /// Borrows all; the delegate owns it and has its windows.
    MediaSession(AppDelegate& delegate, AppSettings& settings, const Platform& platform);
    ~MediaSession() override;

private:
    void carryOut(const MediaControls::Wish& wish) override;
    double secondsPlayed() const override;

    /// In seconds at the usual rate.
    struct Times {
        double played = 0.0;
        double whole = 0.0;
    };

    void optionsChanged();
    void update();
    void look();
    void withdraw();
    void updateTitle();
    MediaControls::Playing playing() const;
    double rate() const;
    void setRate(double rate);
    Times times() const;
    void goTo(double seconds);
    void setAutoScroll(bool on);

    AppDelegate& delegate;
    MediaControls& controls;
    TimerMaker& timers;
    AppSettings::Observation settingsObservation;
    ReadingSettings::Observation readingObservation;
    std::unique_ptr<RepeatingTimer> timer; ///< while the user wants it
    std::optional<MediaControls::Playing> shown;
    std::shared_ptr<const Script> titled; ///< whose title it is
    QString title;
    double lastPlayed = 0.0; ///< at the last look
};

} // namespace tessaline

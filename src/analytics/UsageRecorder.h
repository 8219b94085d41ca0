#pragma once

#include "settings/PermissionType.h"
#include "settings/ScrollRate.h"
#include "settings/SourceType.h"

#include <QDateTime>
#include <QMap>
#include <QString>
#include <QtGlobal>

namespace tessaline {

class AppSettings;
struct PersistedSettings;

/// Something that the user did or that happened to the program.
struct AnalyticsEvent {
    QString name;        ///< such as "content_loaded"
    QDateTime timestamp; ///< left out by those who record: the recorder fills in its own time
    QMap<QString, QString> properties;

    bool operator==(const AnalyticsEvent&) const = default;
};

/// The form that yes and no take in events and signals.
QString booleanText(bool value);

/// Receives usage events. Any thread, unless a function says otherwise.
class UsageRecorder {
public:
    virtual ~UsageRecorder() = default;

    /// The one entry that all operations below use. An event without a timestamp gets the present
    /// one.
    virtual void record(const AnalyticsEvent& event) = 0;

    /// "app_launch" and "app_terminate"; the latter also writes the history. Main thread.
    virtual void trackAppLaunch() = 0;
    virtual void trackAppTerminate() = 0;

    /// "environment_snapshot": the state of the integrations and the settings. Main thread.
    virtual void trackEnvironmentSnapshot(const AppSettings& settings) = 0;

    // Each records the event of its name.
    virtual void trackOnboardingStarted();
    virtual void trackOnboardingCompleted(bool accessibilityGranted, bool obsidianEnabled);
    virtual void trackSourceChanged(SourceType to);
    virtual void trackContentLoaded(SourceType source, qsizetype wordCount);
    virtual void trackContentPasted(qsizetype wordCount);
    virtual void trackAutoScrollToggled(bool enabled, ScrollRate rate);
    virtual void trackSettingChanged(const QString& name, const QString& value);
    /// Four of them, for whichever of these settings changed: width, height, font size, scroll
    /// rate. The position is nobody's business.
    void trackDisplaySettings(const PersistedSettings& settings);
    virtual void trackScreenChanged(int screenIndex);
    virtual void trackObsidianPluginInstalled(bool success);
    virtual void trackPermissionStatus(PermissionType type, bool granted);
};

} // namespace tessaline

#include "analytics/Analytics.h"

#include "analytics/AnalyticsLog.h"
#include "analytics/EnvironmentProbe.h"
#include "analytics/EventHistory.h"
#include "analytics/SharedInstance.h"
#include "platform/BundleInformation.h"
#include "platform/Platform.h"
#include "platform/TaskRunner.h"
#include "platform/TimerMaker.h"
#include "settings/AppSettings.h"
#include "settings/SupportFolder.h"

#include <QLocale>
#include <QStringList>
#include <QUuid>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr TimerMaker::Interval flushInterval{60.0};
constexpr int daysKept = 30;

void logInformation(const QString& line) {
    qCInfo(analyticsLog, "%s", qUtf8Printable(line));
}

/// The event as its log line shows it.
QString describe(const AnalyticsEvent& event) {
    QStringList properties;
    for (auto property = event.properties.begin(); property != event.properties.end(); ++property)
        properties += property.key() + u'=' + property.value();
    return u'[' + event.name + u"] "_s + properties.join(u", "_s);
}

/// Halves to the even number, as printf does.
QString wholeNumber(double value) {
    return QString::number(std::nearbyint(value), 'f', 0);
}

/// The shortest text that stands for exactly this number.
QString number(double value) {
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString joined(const std::vector<SourceType>& sources) {
    QStringList names;
    for (const SourceType source : sources)
        names += rawValue(source);
    return names.join(u',');
}

} // namespace

QString Analytics::defaultHistoryPath() {
    return supportFolderPath() + u"/analytics.json"_s;
}

Analytics& Analytics::shared() {
    return SharedInstance<Analytics>::get();
}

Analytics::Analytics(Setup given)
    : setup(std::move(given))
    , sessionId(QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper())
    , sessionStart(setup.now())
    ,
    // Days of the user's calendar, which need not have 24 hours.
    history(std::make_shared<EventHistory>(setup.historyPath,
                                           sessionStart.toLocalTime().addDays(-daysKept)))
    , flushTimer(setup.platform.timers->every(flushInterval, [this] { flush(); })) {
    // Made now, the logs outlive whoever still records while the process exits.
    analyticsLog();
    perfLog();
    intervalLog();
    setup.platform.historyTasks->run([weakly = std::weak_ptr(history)] {
        if (const auto loading = weakly.lock()) loading->load();
    });
}

Analytics::~Analytics() = default;

void Analytics::record(const AnalyticsEvent& event) {
    AnalyticsEvent recorded = event;
    if (!recorded.timestamp.isValid()) recorded.timestamp = setup.now();
    history->add(recorded);
    qCInfo(analyticsLog, "%s", qUtf8Printable(describe(recorded)));
    setup.signal(recorded.name, recorded.properties);
}

void Analytics::flush() {
    setup.platform.historyTasks->run([weakly = std::weak_ptr(history)] {
        if (const auto flushing = weakly.lock()) flushing->flush();
    });
}

void Analytics::trackAppLaunch() {
    const auto bundleValue = [this](const QString& key) {
        return setup.platform.bundle->value(key).value_or(u"unknown"_s);
    };
    record({.name = u"app_launch"_s,
            .properties = {{u"session_id"_s, sessionId},
                           {u"os_version"_s, setup.system.description},
                           {u"app_version"_s, bundleValue(u"CFBundleShortVersionString"_s)},
                           {u"build_number"_s, bundleValue(u"CFBundleVersion"_s)}}});
    logInformation(u"App launched — session "_s + sessionId);
}

void Analytics::trackAppTerminate() {
    const QString duration = wholeNumber(secondsSinceStart());
    const QString events = QString::number(history->addedCount());
    record({.name = u"app_terminate"_s,
            .properties = {{u"session_id"_s, sessionId},
                           {u"session_duration_seconds"_s, duration},
                           {u"session_event_count"_s, events}}});
    logInformation(
        u"App terminating — session %1 duration %2s, %3 events"_s.arg(sessionId, duration, events));
    // Not on the runner, which is not given the time any more.
    history->flush();
}

void Analytics::trackEnvironmentSnapshot(const AppSettings& settings) {
    const Properties properties = describeEnvironment(settings);
    const auto choose = [&properties](const QString& key, const QString& yes, const QString& no) {
        return properties[key] == booleanText(true) ? yes : no;
    };
    record({.name = u"environment_snapshot"_s, .properties = properties});
    logInformation(u"Environment: obsidian_app=%1 plugin=%2 active=%3 source=%4"_s.arg(
        choose(u"obsidian_app_installed"_s, u"installed"_s, u"not_installed"_s),
        choose(u"obsidian_plugin_installed"_s, u"installed"_s, u"not_installed"_s),
        choose(u"obsidian_plugin_active"_s, u"active"_s, u"inactive"_s),
        properties[u"active_source"_s]));
}

void Analytics::trackOnboardingStarted() {
    UsageRecorder::trackOnboardingStarted();
    logInformation(u"Onboarding started"_s);
}

void Analytics::trackOnboardingCompleted(bool accessibilityGranted, bool obsidianEnabled) {
    UsageRecorder::trackOnboardingCompleted(accessibilityGranted, obsidianEnabled);
    logInformation(u"Onboarding completed — accessibility=%1, obsidian=%2"_s.arg(
        booleanText(accessibilityGranted), booleanText(obsidianEnabled)));
}

void Analytics::trackSourceChanged(SourceType to) {
    UsageRecorder::trackSourceChanged(to);
    logInformation(u"Source changed to "_s + rawValue(to));
}

void Analytics::trackContentPasted(qsizetype wordCount) {
    UsageRecorder::trackContentPasted(wordCount);
    logInformation(u"Content pasted — %1 words"_s.arg(wordCount));
}

void Analytics::trackAutoScrollToggled(bool enabled, ScrollRate rate) {
    UsageRecorder::trackAutoScrollToggled(enabled, rate);
    logInformation(
        u"Auto-scroll %1 — rate=%2"_s.arg(enabled ? u"enabled"_s : u"disabled"_s, rawValue(rate)));
}

double Analytics::secondsSinceStart() const {
    // A clock that was set back makes no session shorter than none.
    return static_cast<double>(std::max<qint64>(sessionStart.msecsTo(setup.now()), 0)) / 1000.0;
}

Analytics::Properties Analytics::describeEnvironment(const AppSettings& settings) const {
    const EnvironmentProbe& environment = setup.environment;
    const bool obsidianEnabled = settings.isSourceEnabled(SourceType::obsidian);
    return {
        {u"obsidian_app_installed"_s, booleanText(environment.isObsidianAppInstalled())},
        {u"obsidian_vault_found"_s, booleanText(environment.isObsidianVaultFound())},
        {u"obsidian_plugin_installed"_s, booleanText(environment.isObsidianPluginInstalled())},
        {u"obsidian_plugin_active"_s, booleanText(environment.isObsidianPluginActive())},
        {u"obsidian_source_enabled"_s, booleanText(obsidianEnabled)},
        {u"active_source"_s, rawValue(settings.activeSourceType())},
        {u"enabled_sources"_s, joined(settings.getEnabledSources())},
        {u"accessibility_granted"_s, booleanText(environment.isAccessibilityGranted())},
        {u"screen_count"_s, QString::number(environment.screenCount())},
        {u"scroll_rate"_s, rawValue(settings.scrollRate())},
        {u"font_size"_s, number(settings.fontSize())},
        {u"window_width"_s, number(settings.width())},
        {u"window_height"_s, number(settings.height())},
    };
}

} // namespace tessaline

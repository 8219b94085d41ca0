#include "analytics/Analytics.h"

#include "analytics/AnalyticsStage.h"
#include "settings/AppSettings.h"
#include "support/CaseName.h"
#include "support/PrintQt.h"
#include "support/RecordedLog.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QRegularExpression>

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::Pair;

const QString uuid = u"[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}"_s;

bool matches(const QString& text, const QString& pattern) {
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch();
}

/// Lets information through, as one does to see the events.
class AnalyticsTest : public testing::Test {
public:
    AnalyticsTest() { QLoggingCategory::setFilterRules(u"app.tessaline.Tessaline.*.info=true"_s); }
    ~AnalyticsTest() override { QLoggingCategory::setFilterRules(QString()); }

protected:
    /// The line as it shows in the recorded log.
    static QString line(const QString& text) {
        return u"app.tessaline.Tessaline.analytics: "_s + text;
    }

    AnalyticsStage stage;
};

TEST_F(AnalyticsTest, KeepsItsHistoryAmongTheProgramsFiles) {
    EXPECT_EQ(Analytics::defaultHistoryPath(),
              QDir::homePath() + u"/Library/Application Support/Tessaline/analytics.json"_s);
}

TEST_F(AnalyticsTest, HandsEveryEventOnAsASignal) {
    const auto recorder = stage.makeRecorder();
    recorder->record({.name = u"window_shown"_s});
    recorder->record({.name = u"source_enabled"_s, .properties = {{u"a"_s, u"1"_s}}});
    EXPECT_THAT(stage.sent,
                ElementsAre(Pair(u"window_shown"_s, Analytics::Properties()),
                            Pair(u"source_enabled"_s, Analytics::Properties{{u"a"_s, u"1"_s}})));
}

TEST_F(AnalyticsTest, LogsALineForEveryEvent) {
    const RecordedLog log;
    const auto recorder = stage.makeRecorder();
    recorder->record({.name = u"name"_s, .properties = {{u"b"_s, u"2"_s}, {u"a"_s, u"1"_s}}});
    recorder->record({.name = u"window_shown"_s});
    EXPECT_EQ(log.entries(), (QStringList{line(u"[name] a=1, b=2"_s), line(u"[window_shown] "_s)}));
}

TEST_F(AnalyticsTest, LogsNoEventsUnlessAskedTo) {
    QLoggingCategory::setFilterRules(QString());
    const RecordedLog log;
    const auto recorder = stage.makeRecorder();
    recorder->trackAppLaunch();
    recorder->trackAppTerminate();
    EXPECT_EQ(log.entries(), QStringList());
}

TEST_F(AnalyticsTest, StampsEventsThatHaveNoTime) {
    const auto recorder = stage.makeRecorder();
    recorder->record({.name = u"a"_s});
    const QDateTime earlier = stage.now.addDays(-1);
    recorder->record({.name = u"b"_s, .timestamp = earlier});
    recorder->trackAppTerminate();
    const auto events = eventsIn(stage.path);
    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(events[0].timestamp, stage.now);
    EXPECT_EQ(events[1].timestamp, earlier);
}

TEST_F(AnalyticsTest, TellsTheVersionsAtLaunch) {
    stage.bundle.values = {{u"CFBundleShortVersionString"_s, u"1.2"_s},
                           {u"CFBundleVersion"_s, u"345"_s}};
    const RecordedLog log;
    stage.makeRecorder()->trackAppLaunch();
    ASSERT_EQ(stage.sent.size(), 1U);
    const auto& [name, properties] = stage.sent[0];
    EXPECT_EQ(name, u"app_launch"_s);
    const QString session = properties[u"session_id"_s];
    EXPECT_TRUE(matches(session, uuid)) << session.toStdString();
    EXPECT_EQ(properties, (Analytics::Properties{{u"session_id"_s, session},
                                                 {u"os_version"_s, u"Example OS 12"_s},
                                                 {u"app_version"_s, u"1.2"_s},
                                                 {u"build_number"_s, u"345"_s}}));
    EXPECT_EQ(log.entries().last(), line(u"App launched — session "_s + session));
}

TEST_F(AnalyticsTest, TellsUnknownVersionsAtLaunch) {
    stage.makeRecorder()->trackAppLaunch();
    EXPECT_EQ(stage.sent[0].second[u"app_version"_s], u"unknown"_s);
    EXPECT_EQ(stage.sent[0].second[u"build_number"_s], u"unknown"_s);
}

TEST_F(AnalyticsTest, HasADifferentSessionInEveryRun) {
    stage.makeRecorder()->trackAppLaunch();
    stage.makeRecorder()->trackAppLaunch();
    EXPECT_NE(stage.sent[0].second[u"session_id"_s], stage.sent[1].second[u"session_id"_s]);
}

TEST_F(AnalyticsTest, SumsTheSessionUpAtTermination) {
    const RecordedLog log;
    const auto recorder = stage.makeRecorder();
    recorder->trackAppLaunch();
    recorder->record({.name = u"a"_s});
    stage.now = stage.now.addMSecs(61'700);
    recorder->trackAppTerminate();
    const auto& [name, properties] = stage.sent.back();
    const QString session = stage.sent[0].second[u"session_id"_s];
    EXPECT_EQ(name, u"app_terminate"_s);
    EXPECT_EQ(properties, (Analytics::Properties{{u"session_id"_s, session},
                                                 {u"session_duration_seconds"_s, u"62"_s},
                                                 {u"session_event_count"_s, u"2"_s}}));
    EXPECT_EQ(log.entries().last(),
              line(u"App terminating — session %1 duration 62s, 2 events"_s.arg(session)));
}

TEST_F(AnalyticsTest, CountsOnlyThisRunsEvents) {
    const auto first = stage.makeRecorder();
    first->record({.name = u"a"_s});
    first->trackAppTerminate();
    const auto second = stage.makeRecorder();
    second->record({.name = u"b"_s});
    second->trackAppTerminate();
    EXPECT_EQ(stage.sent.back().second[u"session_event_count"_s], u"1"_s);
}

struct Duration {
    qint64 milliseconds;
    QString text;
};

class AnalyticsDuration : public testing::TestWithParam<Duration> {};

TEST_P(AnalyticsDuration, IsInWholeSeconds) {
    AnalyticsStage stage;
    const auto recorder = stage.makeRecorder();
    stage.now = stage.now.addMSecs(GetParam().milliseconds);
    recorder->trackAppTerminate();
    EXPECT_EQ(stage.sent.back().second[u"session_duration_seconds"_s], GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Durations, AnalyticsDuration,
                         testing::Values(Duration{0, u"0"_s}, Duration{499, u"0"_s},
                                         Duration{500, u"0"_s}, Duration{1500, u"2"_s},
                                         Duration{2500, u"2"_s}, Duration{86'400'000, u"86400"_s},
                                         Duration{-200, u"0"_s}, Duration{-3'600'000, u"0"_s}),
                         byMember<&Duration::text>);

struct Tracked {
    const char* name;
    void (*track)(UsageRecorder&);
    QString event;
    Analytics::Properties properties;
    QString lineBesides;
};

std::ostream& operator<<(std::ostream& out, const Tracked& test) {
    return out << test.name;
}

class AnalyticsTracked : public AnalyticsTest, public testing::WithParamInterface<Tracked> {};

TEST_P(AnalyticsTracked, IsRecordedAndLogged) {
    const RecordedLog log;
    const auto recorder = stage.makeRecorder();
    GetParam().track(*recorder);
    EXPECT_THAT(stage.sent, ElementsAre(Pair(GetParam().event, GetParam().properties)));
    const QString& besides = GetParam().lineBesides;
    EXPECT_EQ(log.entries().mid(1), besides.isEmpty() ? QStringList() : QStringList{line(besides)});
}

INSTANTIATE_TEST_SUITE_P(
    Operations, AnalyticsTracked,
    testing::Values(
        Tracked{"OnboardingStarted",
                [](UsageRecorder& to) { to.trackOnboardingStarted(); },
                u"onboarding_started"_s,
                {},
                u"Onboarding started"_s},
        Tracked{"OnboardingCompleted",
                [](UsageRecorder& to) { to.trackOnboardingCompleted(true, false); },
                u"onboarding_completed"_s,
                {{u"accessibility_granted"_s, u"true"_s}, {u"obsidian_enabled"_s, u"false"_s}},
                u"Onboarding completed — accessibility=true, obsidian=false"_s},
        Tracked{"SourceChanged",
                [](UsageRecorder& to) { to.trackSourceChanged(SourceType::obsidian); },
                u"source_changed"_s,
                {{u"source_type"_s, rawValue(SourceType::obsidian)}},
                u"Source changed to obsidian"_s},
        Tracked{"ContentLoaded",
                [](UsageRecorder& to) { to.trackContentLoaded(SourceType::clipboard, 120); },
                u"content_loaded"_s,
                {{u"source_type"_s, u"clipboard"_s}, {u"word_count"_s, u"120"_s}},
                u""_s},
        Tracked{"ContentPasted",
                [](UsageRecorder& to) { to.trackContentPasted(7); },
                u"content_pasted"_s,
                {{u"word_count"_s, u"7"_s}},
                u"Content pasted — 7 words"_s},
        Tracked{"AutoScrollOn",
                [](UsageRecorder& to) { to.trackAutoScrollToggled(true, ScrollRate::fast); },
                u"auto_scroll_toggled"_s,
                {{u"enabled"_s, u"true"_s}, {u"scroll_rate"_s, u"fast"_s}},
                u"Auto-scroll enabled — rate=fast"_s},
        Tracked{"AutoScrollOff",
                [](UsageRecorder& to) { to.trackAutoScrollToggled(false, ScrollRate::slow); },
                u"auto_scroll_toggled"_s,
                {{u"enabled"_s, u"false"_s}, {u"scroll_rate"_s, u"slow"_s}},
                u"Auto-scroll disabled — rate=slow"_s},
        Tracked{"SettingChanged",
                [](UsageRecorder& to) { to.trackSettingChanged(u"font_size"_s, u"18"_s); },
                u"setting_changed"_s,
                {{u"setting_name"_s, u"font_size"_s}, {u"setting_value"_s, u"18"_s}},
                u""_s},
        Tracked{"ScreenChanged",
                [](UsageRecorder& to) { to.trackScreenChanged(2); },
                u"screen_changed"_s,
                {{u"screen_index"_s, u"2"_s}},
                u""_s},
        Tracked{"PluginInstalled",
                [](UsageRecorder& to) { to.trackObsidianPluginInstalled(true); },
                u"obsidian_plugin_installed"_s,
                {{u"success"_s, u"true"_s}},
                u""_s},
        Tracked{
            "AutomationStatus",
            [](UsageRecorder& to) { to.trackPermissionStatus(PermissionType::automation, true); },
            u"permission_status"_s,
            {{u"permission_type"_s, u"automation"_s}, {u"granted"_s, u"true"_s}}},
        Tracked{"PermissionStatus",
                [](UsageRecorder& to) {
                    to.trackPermissionStatus(PermissionType::accessibility, false);
                },
                u"permission_status"_s,
                {{u"permission_type"_s, u"accessibility"_s}, {u"granted"_s, u"false"_s}},
                u""_s}),
    byMember<&Tracked::name>);

TEST_F(AnalyticsTest, DescribesABareEnvironment) {
    AppSettings settings(stage.folder.filePath(u"config.json"_s));
    const RecordedLog log;
    stage.makeRecorder()->trackEnvironmentSnapshot(settings);
    EXPECT_THAT(stage.sent,
                ElementsAre(Pair(u"environment_snapshot"_s,
                                 Analytics::Properties{{u"obsidian_app_installed"_s, u"false"_s},
                                                       {u"obsidian_vault_found"_s, u"false"_s},
                                                       {u"obsidian_plugin_installed"_s, u"false"_s},
                                                       {u"obsidian_plugin_active"_s, u"false"_s},
                                                       {u"obsidian_source_enabled"_s, u"false"_s},
                                                       {u"active_source"_s, u"clipboard"_s},
                                                       {u"enabled_sources"_s, u"clipboard"_s},
                                                       {u"accessibility_granted"_s, u"false"_s},
                                                       {u"screen_count"_s, u"1"_s},
                                                       {u"scroll_rate"_s, u"medium"_s},
                                                       {u"font_size"_s, u"16"_s},
                                                       {u"window_width"_s, u"450"_s},
                                                       {u"window_height"_s, u"256"_s}})));
    EXPECT_EQ(log.entries().last(),
              line(u"Environment: obsidian_app=not_installed plugin=not_installed active=inactive "
                   "source=clipboard"_s));
}

TEST_F(AnalyticsTest, DescribesAFullEnvironment) {
    AppSettings settings(stage.folder.filePath(u"config.json"_s));
    settings.setSourceEnabled(SourceType::obsidian, true);
    settings.setActiveSourceType(SourceType::obsidian);
    settings.setFontSize(18.5);
    settings.setWidth(600.25);
    settings.setHeight(301);
    settings.setScrollRate(ScrollRate::fast);
    stage.environment.appInstalled = stage.environment.vaultFound = true;
    stage.environment.pluginInstalled = stage.environment.pluginActive = true;
    stage.environment.accessibilityGranted = true;
    stage.environment.screens = 3;
    const RecordedLog log;
    stage.makeRecorder()->trackEnvironmentSnapshot(settings);
    const Analytics::Properties properties = stage.sent[0].second;
    for (const auto& key :
         {u"obsidian_app_installed"_s, u"obsidian_vault_found"_s, u"obsidian_plugin_installed"_s,
          u"obsidian_plugin_active"_s, u"obsidian_source_enabled"_s, u"accessibility_granted"_s})
        EXPECT_EQ(properties[key], u"true"_s) << key.toStdString();
    EXPECT_EQ(properties[u"active_source"_s], u"obsidian"_s);
    EXPECT_EQ(properties[u"enabled_sources"_s], u"obsidian,clipboard"_s);
    EXPECT_EQ(properties[u"screen_count"_s], u"3"_s);
    EXPECT_EQ(properties[u"scroll_rate"_s], u"fast"_s);
    EXPECT_EQ(properties[u"font_size"_s], u"18.5"_s);
    EXPECT_EQ(properties[u"window_width"_s], u"600.25"_s);
    EXPECT_EQ(properties[u"window_height"_s], u"301"_s);
    EXPECT_EQ(log.entries().last(),
              line(u"Environment: obsidian_app=installed plugin=installed active=active "
                   "source=obsidian"_s));
}

struct Answer {
    bool FakeEnvironmentProbe::*answer;
    QString property;
    QString lineBesides;
};

class AnalyticsEnvironment : public AnalyticsTest, public testing::WithParamInterface<Answer> {};

TEST_P(AnalyticsEnvironment, ShowsEachAnswerUnderItsOwnName) {
    stage.environment.*GetParam().answer = true;
    const AppSettings settings(stage.folder.filePath(u"config.json"_s));
    const RecordedLog log;
    stage.makeRecorder()->trackEnvironmentSnapshot(settings);
    const Analytics::Properties& properties = stage.sent.at(0).second;
    EXPECT_EQ(properties.keys(u"true"_s), QStringList{GetParam().property});
    EXPECT_EQ(log.entries().last(),
              line(u"Environment: "_s + GetParam().lineBesides + u" source=clipboard"_s));
}

using Probe = FakeEnvironmentProbe;

INSTANTIATE_TEST_SUITE_P(
    Answers, AnalyticsEnvironment,
    testing::Values(Answer{&Probe::appInstalled, u"obsidian_app_installed"_s,
                           u"obsidian_app=installed plugin=not_installed active=inactive"_s},
                    Answer{&Probe::vaultFound, u"obsidian_vault_found"_s,
                           u"obsidian_app=not_installed plugin=not_installed active=inactive"_s},
                    Answer{&Probe::pluginInstalled, u"obsidian_plugin_installed"_s,
                           u"obsidian_app=not_installed plugin=installed active=inactive"_s},
                    Answer{&Probe::pluginActive, u"obsidian_plugin_active"_s,
                           u"obsidian_app=not_installed plugin=not_installed active=active"_s},
                    Answer{&Probe::accessibilityGranted, u"accessibility_granted"_s,
                           u"obsidian_app=not_installed plugin=not_installed active=inactive"_s}),
    byMember<&Answer::property>);

} // namespace
} // namespace tessaline

#include "settings/AppSettings.h"

#include "settings/TemporaryHome.h"
#include "support/CaseName.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFileInfo>

#include <gmock/gmock.h>

#include <limits>
#include <ostream>
#include <type_traits>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

static_assert(!std::is_copy_constructible_v<AppSettings>);

class AppSettingsTest : public testing::Test {
protected:
    TemporaryHome home;
    QString folder = home.path() + u"/Library/Application Support/Tessaline"_s;
    QString path = folder + u"/config.json"_s;

    /// What the program finds at its next start.
    AppSettings reloaded() const { return AppSettings(); }

    void putConfig(const QByteArray& bytes) const {
        ASSERT_TRUE(QDir().mkpath(folder));
        putFile(path, bytes);
    }
};

TEST_F(AppSettingsTest, StartsWithTheDefaultsAndWritesThemWhereThereIsNoFile) {
    const AppSettings settings;
    EXPECT_EQ(settings.values(), PersistedSettings());
    EXPECT_EQ(settings.sourceMode, SourceMode::file);
    EXPECT_EQ(settings.clipboardContent, QString());
    EXPECT_EQ(settings.testConfigURL, std::nullopt);
    const QByteArray written = fileBytes(path);
    EXPECT_TRUE(written.contains("\"fontSize\": 16.0,\n"));
    for (const auto* key : {"sourceMode", "clipboardContent", "testConfigURL", "appleNotesConfig",
                            "obsidianBookmarkData", "preferredDisplayID"})
        EXPECT_FALSE(written.contains(key)) << key;
}

TEST_F(AppSettingsTest, LoadsWhatWasSaved) {
    AppSettings settings;
    settings.change([](auto& values) { values.notePath = u"/talk.md"_s; });
    settings.setWidth(612.5);
    settings.setScrollSpeed(1.5);
    settings.setSourceEnabled(SourceType::obsidian, true);
    settings.setActiveSourceType(SourceType::obsidian);
    settings.setAppleNotesConfig(AppleNotesConfiguration{u"x-coredata://7"_s, u"Talk"_s});
    settings.change(
        [](PersistedSettings& values) { values.obsidianBookmarkData = QByteArray("\0\1", 2); });
    settings.setPreferredDisplayID(77);
    EXPECT_EQ(reloaded().values(), settings.values());
}

TEST_F(AppSettingsTest, NeverWritesWhatLivesInMemoryOnly) {
    AppSettings settings;
    settings.sourceMode = SourceMode::clipboard;
    settings.clipboardContent = u"secret speech"_s;
    settings.save();
    const QByteArray written = fileBytes(path);
    EXPECT_FALSE(written.contains("secret speech"));
    EXPECT_FALSE(written.contains("sourceMode"));
    EXPECT_FALSE(written.contains("clipboardContent"));
}

TEST_F(AppSettingsTest, LoadingKeepsWhatLivesInMemoryOnly) {
    AppSettings settings;
    settings.sourceMode = SourceMode::clipboard;
    settings.clipboardContent = u"text"_s;
    putConfig(R"({"fontSize": 20, "sourceMode": "file", "clipboardContent": "other"})");
    settings.loadSettings();
    EXPECT_EQ(settings.fontSize(), 20.0);
    EXPECT_EQ(settings.sourceMode, SourceMode::clipboard);
    EXPECT_EQ(settings.clipboardContent, u"text"_s);
}

TEST_F(AppSettingsTest, LoadingTakesOptionalValuesAway) {
    AppSettings settings;
    settings.setPreferredDisplayID(77);
    settings.setAppleNotesConfig(AppleNotesConfiguration{u"7"_s, u"Talk"_s});
    settings.change([](auto& values) { values.obsidianBookmarkData = "bytes"; });
    putConfig("{}");
    settings.loadSettings();
    EXPECT_EQ(settings.values(), PersistedSettings());
}

TEST_F(AppSettingsTest, LoadingKeepsPresentValuesAndWritesThemWhereTheFileIsGone) {
    AppSettings settings;
    settings.setFontSize(20);
    ASSERT_TRUE(QFile::remove(path));
    settings.loadSettings();
    EXPECT_EQ(settings.fontSize(), 20.0);
    EXPECT_EQ(reloaded().fontSize(), 20.0);
}

struct SpeedCase {
    const char* name;
    QByteArray json;
    double scrollSpeed;
    double resumeSpeed;
};

std::ostream& operator<<(std::ostream& out, const SpeedCase& test) {
    return out << test.name;
}

class AppSettingsSpeeds : public AppSettingsTest, public testing::WithParamInterface<SpeedCase> {};

TEST_P(AppSettingsSpeeds, AreLimitedAndRepairedWithoutSaving) {
    putConfig(GetParam().json);
    const AppSettings settings;
    EXPECT_EQ(settings.scrollSpeed(), GetParam().scrollSpeed);
    EXPECT_EQ(settings.lastNonZeroScrollSpeed(), GetParam().resumeSpeed);
    EXPECT_EQ(fileBytes(path), GetParam().json);
}

INSTANTIATE_TEST_SUITE_P(
    Files, AppSettingsSpeeds,
    testing::Values(SpeedCase{"TooFast", R"({"scrollSpeed": 9})", 5.0, 5.0},
                    SpeedCase{"AtTheLimit", R"({"scrollSpeed": 5.0})", 5.0, 5.0},
                    SpeedCase{"ResumeTooFast", R"({"lastNonZeroScrollSpeed": 9})", 0.0, 5.0},
                    SpeedCase{"SpeedIsTheResumeSpeed",
                              R"({"scrollSpeed": 1.5, "lastNonZeroScrollSpeed": 3})", 1.5, 1.5},
                    SpeedCase{"StoppedKeepsTheResumeSpeed",
                              R"({"scrollSpeed": 0, "lastNonZeroScrollSpeed": 3})", 0.0, 3.0},
                    SpeedCase{"NegativeResume",
                              R"({"scrollSpeed": 0, "lastNonZeroScrollSpeed": -1})", 0.0, 2.0},
                    SpeedCase{"ZeroResume", R"({"scrollSpeed": 0, "lastNonZeroScrollSpeed": 0})",
                              0.0, 2.0},
                    SpeedCase{"NegativeSpeedStays",
                              R"({"scrollSpeed": -3, "lastNonZeroScrollSpeed": -1})", -3.0, 2.0}),
    byMember<&SpeedCase::name>);

TEST_F(AppSettingsTest, CreatesItsFolderAgainForEverySave) {
    AppSettings settings;
    ASSERT_TRUE(QDir(home.path() + u"/Library"_s).removeRecursively());
    settings.setFontSize(20);
    EXPECT_EQ(reloaded().fontSize(), 20.0);
}

TEST_F(AppSettingsTest, FollowsTheHomeFolderOfTheMoment) {
    const AppSettings settings;
    const TemporaryHome otherHome;
    settings.save();
    EXPECT_TRUE(QFileInfo::exists(otherHome.path() +
                                  u"/Library/Application Support/Tessaline/config.json"_s));
}

TEST_F(AppSettingsTest, UsesTheTestFileInPlaceOfTheStandardOne) {
    const QString testPath = home.path() + u"/test.json"_s;
    putFile(testPath, R"({"fontSize": 20})");
    AppSettings settings(testPath);
    EXPECT_EQ(settings.testConfigURL, testPath);
    EXPECT_EQ(settings.fontSize(), 20.0);
    settings.setFontSize(21);
    EXPECT_TRUE(fileBytes(testPath).contains("\"fontSize\": 21.0"));
    EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST_F(AppSettingsTest, SwitchesToTheTestFileAndBackAfterConstruction) {
    AppSettings settings;
    const QByteArray standard = fileBytes(path);
    const QString testPath = home.path() + u"/test.json"_s;
    settings.testConfigURL = testPath;
    settings.setFontSize(20);
    EXPECT_EQ(fileBytes(path), standard);
    EXPECT_TRUE(fileBytes(testPath).contains("\"fontSize\": 20.0"));
    settings.testConfigURL.reset();
    settings.loadSettings();
    EXPECT_EQ(settings.fontSize(), 16.0);
}

TEST_F(AppSettingsTest, EnablesASourceAndSaves) {
    AppSettings settings;
    settings.setSourceEnabled(SourceType::obsidian, true);
    EXPECT_THAT(settings.enabledSourceTypes(),
                UnorderedElementsAre(SourceType::clipboard, SourceType::obsidian));
    EXPECT_EQ(settings.activeSourceType(), SourceType::clipboard);
    EXPECT_EQ(reloaded().enabledSourceTypes(), settings.enabledSourceTypes());
}

TEST_F(AppSettingsTest, DisablingTheActiveSourceMakesTheClipboardActiveAndSaves) {
    AppSettings settings;
    settings.setSourceEnabled(SourceType::obsidian, true);
    settings.setActiveSourceType(SourceType::obsidian);
    settings.setSourceEnabled(SourceType::obsidian, false);
    EXPECT_THAT(settings.enabledSourceTypes(), UnorderedElementsAre(SourceType::clipboard));
    EXPECT_EQ(settings.activeSourceType(), SourceType::clipboard);
    EXPECT_TRUE(fileBytes(path).contains("\"activeSourceType\": \"clipboard\""));
    EXPECT_FALSE(fileBytes(path).contains("obsidian\""));
}

TEST_F(AppSettingsTest, DisablingAnotherSourceKeepsTheActiveOne) {
    AppSettings settings;
    settings.setSourceEnabled(SourceType::obsidian, true);
    settings.setSourceEnabled(SourceType::appleNotes, true);
    settings.setActiveSourceType(SourceType::obsidian);
    settings.setSourceEnabled(SourceType::appleNotes, false);
    EXPECT_EQ(settings.activeSourceType(), SourceType::obsidian);
    EXPECT_EQ(reloaded().activeSourceType(), SourceType::obsidian);
}

TEST_F(AppSettingsTest, TheClipboardCannotBeDisabledAndIsNotSaved) {
    AppSettings settings;
    ASSERT_TRUE(QFile::remove(path));
    settings.setSourceEnabled(SourceType::clipboard, false);
    EXPECT_THAT(settings.enabledSourceTypes(), UnorderedElementsAre(SourceType::clipboard));
    EXPECT_EQ(settings.activeSourceType(), SourceType::clipboard);
    settings.setSourceEnabled(SourceType::clipboard, true);
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(AppSettingsTest, TheClipboardIsEnabledAfterEverySwitch) {
    for (const SourceType source : allSourceTypes) {
        for (const bool enabled : {true, false}) {
            AppSettings settings;
            settings.change([](auto& values) { values.enabledSourceTypes.clear(); });
            settings.setSourceEnabled(source, enabled);
            EXPECT_EQ(settings.enabledSourceTypes().count(SourceType::clipboard), 1U);
        }
    }
}

TEST_F(AppSettingsTest, ListsEnabledSourcesInTheOrderOfferedWithoutAppleNotes) {
    AppSettings settings;
    EXPECT_THAT(settings.getEnabledSources(), ElementsAre(SourceType::clipboard));
    settings.change([](auto& values) {
        values.enabledSourceTypes = {SourceType::clipboard, SourceType::appleNotes,
                                     SourceType::obsidian};
    });
    EXPECT_THAT(settings.getEnabledSources(),
                ElementsAre(SourceType::obsidian, SourceType::clipboard));
    settings.change([](auto& values) { values.enabledSourceTypes = {SourceType::appleNotes}; });
    EXPECT_THAT(settings.getEnabledSources(), testing::IsEmpty());
}

TEST_F(AppSettingsTest, ReportsANumberThatCannotBeWrittenAndKeepsFileAndValues) {
    AppSettings settings;
    settings.setFontSize(20);
    const QByteArray before = fileBytes(path);
    testing::internal::CaptureStdout();
    settings.setWidth(std::numeric_limits<double>::infinity());
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "❌ Failed to save config: \"width\" is not a finite number\n");
    EXPECT_EQ(fileBytes(path), before);
    EXPECT_EQ(settings.fontSize(), 20.0);
}

TEST_F(AppSettingsTest, SavesEachChangeOnceAndThenTellsWhatWasBefore) {
    AppSettings settings;
    ASSERT_TRUE(QFile::remove(path));
    std::vector<double> sizes;
    const auto observation = settings.observe([&](const PersistedSettings& before) {
        sizes = {before.fontSize, settings.fontSize(), reloaded().fontSize()};
    });
    settings.setFontSize(20);
    EXPECT_THAT(sizes, ElementsAre(16, 20, 20));
}

TEST_F(AppSettingsTest, TellsNobodyOfAChangeThatIsNone) {
    AppSettings settings;
    int calls = 0;
    const auto observation = settings.observe([&](const PersistedSettings&) { ++calls; });
    ASSERT_TRUE(QFile::remove(path));
    settings.setFontSize(16);
    settings.setScrollSpeed(-1);
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(QFileInfo::exists(path));
}

TEST_F(AppSettingsTest, TellsOfFieldsThatChangeTogetherOnce) {
    AppSettings settings;
    int calls = 0;
    const auto observation = settings.observe([&](const PersistedSettings&) { ++calls; });
    settings.change([](PersistedSettings& values) {
        values.width = 600;
        values.height = 300;
    });
    EXPECT_EQ(calls, 1);
}

TEST_F(AppSettingsTest, TellsObserversInTheirOrderUntilTheyAreDropped) {
    AppSettings settings;
    std::vector<int> called;
    AppSettings::Observation first;
    AppSettings::Observation second;
    AppSettings::Observation third;
    first = settings.observe([&](const PersistedSettings&) {
        called.push_back(1);
        second.reset();
    });
    second = settings.observe([&](const PersistedSettings&) { called.push_back(2); });
    third = settings.observe([&](const PersistedSettings&) { called.push_back(3); });
    settings.setWidth(600);
    first.reset();
    settings.setWidth(700);
    EXPECT_THAT(called, ElementsAre(1, 3, 3));
}

TEST_F(AppSettingsTest, KeepsTheSpeedWithinItsLimitsAndRemembersItForLater) {
    AppSettings settings;
    settings.setScrollSpeed(9);
    EXPECT_EQ(settings.scrollSpeed(), 5.0);
    EXPECT_EQ(settings.lastNonZeroScrollSpeed(), 5.0);
    settings.setScrollSpeed(1.5);
    settings.setScrollSpeed(-1);
    EXPECT_EQ(settings.scrollSpeed(), 0.0);
    EXPECT_EQ(settings.lastNonZeroScrollSpeed(), 1.5);
    settings.setAutoScrollEnabled(true);
    EXPECT_EQ(reloaded().scrollSpeed(), 1.5);
    settings.change([](PersistedSettings& values) { values.scrollSpeed = 9; });
    EXPECT_EQ(settings.scrollSpeed(), 5.0);
}

} // namespace
} // namespace tessaline

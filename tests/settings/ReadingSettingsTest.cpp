#include "settings/ReadingSettings.h"

#include "settings/TemporaryHome.h"
#include "support/CaseName.h"
#include "support/NotAFile.h"
#include "support/OrdinaryUser.h"
#include "support/RecordedLog.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFileInfo>

#include <gmock/gmock.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::HasSubstr;

class ReadingSettingsTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"reading.json"_s);

    /// The options that the file gives; what was printed is in `printed`.
    ReadingOptions loaded() {
        testing::internal::CaptureStdout();
        const ReadingSettings settings(path);
        printed = testing::internal::GetCapturedStdout();
        return settings.values();
    }

    /// The names of the files beside each other in the folder.
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    std::string printed;
};

ReadingOptions everythingElse() {
    return {.pace = PaceMode::finish,
            .wordsPerMinute = 180,
            .finishMinutes = 7.5,
            .finishAt = TimeOfDay{930},
            .eyeLine = 0.3,
            .guide = ReadingGuide::band,
            .guideLines = 2,
            .countdownSeconds = 3,
            .atEnd = ScriptEnd::goRound,
            .glide = true,
            .mirror = Mirroring::both,
            .groundOpacity = 0.35,
            .clickThrough = true,
            .fontFamily = u"DejaVu Serif"_s,
            .lineSpacing = 1.15,
            .readingDistance = 85,
            .mediaKeys = true,
            .remotePage = true,
            .remotePort = 5000,
            .remoteAddress = u"192.168.1.5"_s};
}

constexpr auto everythingElseWritten = R"({
  "pace": "finish",
  "wordsPerMinute": 180.0,
  "finishMinutes": 7.5,
  "finishAt": "15:30",
  "eyeLine": 0.3,
  "guide": "band",
  "guideLines": 2.0,
  "countdownSeconds": 3.0,
  "atEnd": "round",
  "glide": true,
  "mirror": "both",
  "groundOpacity": 0.35,
  "clickThrough": true,
  "fontFamily": "DejaVu Serif",
  "lineSpacing": 1.15,
  "readingDistance": 85.0,
  "mediaKeys": true,
  "remotePage": true,
  "remotePort": 5000.0,
  "remoteAddress": "192.168.1.5"
}
)";

TEST_F(ReadingSettingsTest, WritesNothingUntilSomethingChanges) {
    ReadingSettings settings(path);
    EXPECT_EQ(settings.values(), ReadingOptions());
    settings.change([](ReadingOptions& options) { options.wordsPerMinute = 150; });
    EXPECT_FALSE(QFileInfo::exists(path));
    settings.change([](ReadingOptions& options) { options.glide = true; });
    EXPECT_TRUE(loaded().glide);
    EXPECT_EQ(printed, "");
}

TEST_F(ReadingSettingsTest, KeepsEveryOption) {
    ReadingSettings(path).change([](ReadingOptions& options) { options = everythingElse(); });
    EXPECT_EQ(fileBytes(path), everythingElseWritten);
    EXPECT_EQ(loaded(), everythingElse());

    // What has no value any more is not in the file either.
    ReadingSettings(path).change([](ReadingOptions& options) {
        options.finishAt.reset();
        options.eyeLine.reset();
    });
    EXPECT_FALSE(fileBytes(path).contains("finishAt"));
    EXPECT_FALSE(fileBytes(path).contains("eyeLine"));
    EXPECT_EQ(loaded().eyeLine, std::nullopt);
}

TEST_F(ReadingSettingsTest, LiesBesideTheConfiguration) {
    const TemporaryHome home;
    ReadingSettings settings;
    settings.change([](ReadingOptions& options) { options.glide = true; });
    EXPECT_TRUE(
        QFileInfo::exists(home.path() + u"/Library/Application Support/Tessaline/reading.json"_s));
}

TEST_F(ReadingSettingsTest, TellsOfChangesOnceTheyAreSaved) {
    ReadingSettings settings(path);
    std::vector<double> before;
    const auto observation = settings.observe([&](const ReadingOptions& options) {
        before.push_back(options.wordsPerMinute);
        EXPECT_EQ(loaded(), settings.values());
    });
    settings.change([](ReadingOptions& options) { options.wordsPerMinute = 200; });
    settings.change([](ReadingOptions& options) { options.wordsPerMinute = 201; });
    settings.change([](ReadingOptions& options) { options.wordsPerMinute = 250; });
    EXPECT_THAT(before, testing::ElementsAre(150, 200));
}

TEST_F(ReadingSettingsTest, KeepsTheKeysOfANewerVersion) {
    putFile(path, R"({"voice": {"language": "de"}, "glide": true})");
    ReadingSettings(path).change([](ReadingOptions& options) { options.countdownSeconds = 5; });
    EXPECT_TRUE(fileBytes(path).simplified().contains(R"("voice": { "language": "de" })"));
    EXPECT_TRUE(loaded().glide);
    EXPECT_EQ(loaded().countdownSeconds, 5);
}

struct Limit {
    const char* key;
    const char* value;
    ReadingOptions options;
};

std::ostream& operator<<(std::ostream& out, const Limit& test) {
    return out << test.key << ' ' << test.value;
}

class ReadingLimit : public ReadingSettingsTest, public testing::WithParamInterface<Limit> {};

TEST_P(ReadingLimit, IsKeptAndAValueBeyondItReported) {
    const auto& [key, value, options] = GetParam();
    putFile(path, QByteArray("{\"") + key + "\": " + value + '}');
    EXPECT_EQ(loaded(), options);
    EXPECT_EQ(printed, std::string("⚠️ Reading options out of range were brought into it: ") +
                           key + '\n');
}

INSTANTIATE_TEST_SUITE_P(
    Values, ReadingLimit,
    testing::Values(Limit{"wordsPerMinute", "59", {.wordsPerMinute = 60}},
                    Limit{"wordsPerMinute", "1e300", {.wordsPerMinute = 300}},
                    Limit{"wordsPerMinute", "152", {}},
                    Limit{"finishMinutes", "0", {.finishMinutes = 0.5}},
                    Limit{"finishMinutes", "601", {.finishMinutes = 600}},
                    Limit{"eyeLine", "0.1", {.eyeLine = 0.25}},
                    Limit{"eyeLine", "50", {.eyeLine = 0.5}}, Limit{"guideLines", "0", {}},
                    Limit{"guideLines", "3", {.guideLines = 2}},
                    Limit{"countdownSeconds", "-1", {}},
                    Limit{"countdownSeconds", "2.6", {.countdownSeconds = 3}},
                    Limit{"countdownSeconds", "11", {.countdownSeconds = 10}}));

TEST_F(ReadingSettingsTest, NamesAllThatIsBeyondItsLimitsInOneLine) {
    putFile(path, R"({"wordsPerMinute": 1, "eyeLine": 1, "glide": true})");
    EXPECT_EQ(loaded(), (ReadingOptions{.wordsPerMinute = 60, .eyeLine = 0.5, .glide = true}));
    EXPECT_EQ(
        printed,
        "⚠️ Reading options out of range were brought into it: wordsPerMinute, eyeLine\n");
}

TEST_F(ReadingSettingsTest, SaysWhenTheTimeToFinishMeansTomorrow) {
    // Midnight is over, whenever this runs.
    putFile(path, R"({"pace": "finish", "finishAt": "00:00"})");
    EXPECT_EQ(loaded().finishAt, TimeOfDay{0});
    EXPECT_EQ(printed, "⚠️ The time to finish, 00:00, has passed today: it means tomorrow\n");
    putFile(path, R"({"pace": "words", "finishAt": "00:00"})");
    loaded();
    EXPECT_EQ(printed, "");
}

TEST_F(ReadingSettingsTest, BringsChangesWithinTheLimits) {
    ReadingSettings settings(path);
    settings.change([](ReadingOptions& options) {
        options.wordsPerMinute = 1000;
        options.countdownSeconds = -5;
    });
    EXPECT_EQ(settings.values(), (ReadingOptions{.wordsPerMinute = 300}));
}

struct Unusable {
    const char* bytes;
    const char* reason;
};

std::ostream& operator<<(std::ostream& out, const Unusable& test) {
    return out << test.bytes;
}

class UnusableReadingFile : public ReadingSettingsTest,
                            public testing::WithParamInterface<Unusable> {};

TEST_P(UnusableReadingFile, IsReportedAndKeptBesideTheNextOne) {
    const QByteArray bytes = GetParam().bytes;
    putFile(path, bytes);
    const RecordedLog log;
    testing::internal::CaptureStdout();
    ReadingSettings settings(path);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              std::string("⚠️ Failed to load reading options: ") + GetParam().reason + '\n');
    EXPECT_EQ(settings.values(), ReadingOptions());
    EXPECT_EQ(fileBytes(path), bytes);

    settings.change([](ReadingOptions& options) { options.glide = true; });
    EXPECT_TRUE(loaded().glide);
    EXPECT_EQ(fileBytes(path + u".unreadable"_s), bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Files, UnusableReadingFile,
    testing::Values(Unusable{"", "Invalid JSON at byte 1"},
                    Unusable{R"({"glide": true)", "Invalid JSON at byte 15"},
                    Unusable{"[]", "The JSON is not an object"},
                    Unusable{R"({"pace": "warp"})", "Invalid value for \"pace\""},
                    Unusable{R"({"pace": 3})", "Invalid value for \"pace\""},
                    Unusable{R"({"glide": "yes"})", "Invalid value for \"glide\""},
                    Unusable{R"({"finishAt": "25:00"})", "Invalid value for \"finishAt\""},
                    Unusable{R"({"eyeLine": "second"})", "Invalid value for \"eyeLine\""},
                    Unusable{R"({"wordsPerMinute": {}})", "Invalid value for \"wordsPerMinute\""}));

TEST_F(ReadingSettingsTest, LoadsNothingFromWhatIsNoFile) {
    placeNotAFile(NotAFile::folder, path);
    EXPECT_EQ(loaded(), ReadingOptions());
    EXPECT_THAT(printed, HasSubstr("⚠️ Failed to load reading options: "));
    EXPECT_EQ(std::count(printed.begin(), printed.end(), '\n'), 1);
}

constexpr auto readableByAll = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                               QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;

// Permissions do not bind the superuser, hence the child process that gives such powers up.
TEST_F(ReadingSettingsTest, GoesOnWithTheChangeWhereTheFolderIsReadOnly) {
    putFile(path, R"({"glide": true})");
    ASSERT_TRUE(QFile::setPermissions(path, readableByAll));
    ASSERT_TRUE(QFile::setPermissions(folder.path(), readableByAll));
    const auto changeThere = [this] {
        becomeOrdinaryUser();
        testing::internal::CaptureStdout();
        ReadingSettings settings(path);
        settings.change([](ReadingOptions& options) { options.countdownSeconds = 5; });
        const std::string said = testing::internal::GetCapturedStdout();
        const bool isReported = said.starts_with("❌ Failed to save reading options: ") &&
                                std::count(said.begin(), said.end(), '\n') == 1;
        const bool isInForce =
            settings.values() == ReadingOptions{.countdownSeconds = 5, .glide = true};
        ::_exit(isReported && isInForce ? 0 : 1);
    };
    EXPECT_EXIT(changeThere(), testing::ExitedWithCode(0), "");
    ASSERT_TRUE(QFile::setPermissions(folder.path(), readableByAll | QFile::WriteOwner));
    EXPECT_EQ(fileBytes(path), R"({"glide": true})");
    EXPECT_EQ(files(), QStringList{u"reading.json"_s});
}

} // namespace
} // namespace tessaline

#include "settings/SettingsFile.h"

#include "support/NotAFile.h"
#include "support/RecordedLog.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Settings that have nothing to do with those of the program.
struct Options {
    bool mirrored = false;
    double pace = 150;
    std::optional<QString> voice;

    bool operator==(const Options&) const = default;
};

const SettingsTable<Options> table({
    settingsKey("mirrored", &Options::mirrored),
    settingsKey("pace", &Options::pace, 400),
    settingsKey("voice", &Options::voice),
});

class SettingsFileTest : public testing::Test {
protected:
    SettingsFile<Options> file(UnknownKeys unknown = UnknownKeys::kept) const {
        return {[this] { return path; }, table, unknown};
    }

    std::optional<Options> loaded() { return file().load(&error); }

    QTemporaryDir folder;
    QString path = folder.filePath(u"reading.json"_s);
    QString error;
};

TEST_F(SettingsFileTest, LoadsWhatItSaved) {
    EXPECT_FALSE(file().exists());
    const Options options{.mirrored = true, .pace = 180, .voice = u"Ann"_s};
    ASSERT_TRUE(file().save(options, &error)) << error.toStdString();
    EXPECT_TRUE(file().exists());
    EXPECT_EQ(loaded(), options);
    EXPECT_EQ(fileBytes(path),
              "{\n  \"mirrored\": true,\n  \"pace\": 180.0,\n  \"voice\": \"Ann\"\n}\n");
}

TEST_F(SettingsFileTest, HasTheDefaultsWhereKeysAreMissingAndKeepsNumbersInTheirLimits) {
    putFile(path, R"({"pace": 1000})");
    EXPECT_EQ(loaded(), (Options{.pace = 400}));
}

TEST_F(SettingsFileTest, KeepsTheKeysOfANewerVersion) {
    putFile(path, R"({"guide": {"line": 2, "shown": [true, null]}, "pace": 160})");
    auto newer = file();
    auto options = newer.load(&error).value_or(Options());
    options.mirrored = true;
    ASSERT_TRUE(newer.save(options, &error)) << error.toStdString();
    EXPECT_EQ(fileBytes(path).simplified(), R"({ "mirrored": true, "pace": 160.0, )"
                                            R"("guide": { "line": 2, "shown": [ true, null ] } })");
}

TEST_F(SettingsFileTest, KeepsAlsoTheKeysThatWereWrittenSinceItWasLoaded) {
    auto ours = file();
    ASSERT_TRUE(ours.save({}, &error));
    putFile(path, R"({"guide": 3})");
    ASSERT_TRUE(ours.save({.mirrored = true}, &error));
    EXPECT_TRUE(fileBytes(path).contains("\"guide\": 3"));
    EXPECT_EQ(loaded(), (Options{.mirrored = true}));
}

TEST_F(SettingsFileTest, DropsUnknownKeysWhereNoneAreWanted) {
    putFile(path, R"({"guide": 3, "mirrored": true})");
    ASSERT_TRUE(file(UnknownKeys::dropped).save({}, &error));
    EXPECT_FALSE(fileBytes(path).contains("guide"));
}

TEST_F(SettingsFileTest, KeepsACopyOfAFileThatCannotBeUsed) {
    const QByteArray typo = R"({"pace": "fast"})";
    putFile(path, typo);
    const RecordedLog log;
    auto ours = file();
    EXPECT_EQ(ours.load(&error), std::nullopt);
    EXPECT_EQ(error, u"Invalid value for \"pace\""_s);
    EXPECT_EQ(fileBytes(path), typo);
    ours.keepUnusable({});
    EXPECT_EQ(fileBytes(path + u".unreadable"_s), typo);
    EXPECT_EQ(log.entries().size(), 1);
    ASSERT_TRUE(ours.save({}, &error));
    EXPECT_EQ(loaded(), Options());
}

TEST_F(SettingsFileTest, TellsWhyItCannotBeSaved) {
    placeNotAFile(NotAFile::folder, path);
    EXPECT_FALSE(file().save({}, &error));
    EXPECT_EQ(error, u"Not a regular file"_s);
}

} // namespace
} // namespace tessaline

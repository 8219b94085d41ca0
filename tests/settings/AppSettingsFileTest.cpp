#include "settings/AppSettings.h"

#include "settings/JsonReader.h"
#include "settings/TemporaryHome.h"
#include "support/CaseName.h"
#include "support/OrdinaryUser.h"
#include "support/RecordedLog.h"
#include "support/SmallDisk.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFileInfo>

#include <gmock/gmock.h>

#include <ostream>

#include <sys/stat.h>
#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Configurations that cannot be used, and places that cannot be written.
class AppSettingsFile : public testing::Test {
protected:
    TemporaryHome home;
    QString path = home.path() + u"/config.json"_s;

    /// Loads the file into new settings, expects the defaults, and gives what was printed.
    std::string printedByLoading() const {
        testing::internal::CaptureStdout();
        const AppSettings settings(path);
        EXPECT_EQ(settings.values(), PersistedSettings());
        return testing::internal::GetCapturedStdout();
    }

    static std::string printedBySaving(const AppSettings& settings) {
        testing::internal::CaptureStdout();
        settings.save();
        return testing::internal::GetCapturedStdout();
    }
};

struct UnusableFile {
    const char* name;
    QByteArray bytes;
    const char* reason;
};

std::ostream& operator<<(std::ostream& out, const UnusableFile& test) {
    return out << test.name;
}

class AppSettingsUnusableFile : public AppSettingsFile,
                                public testing::WithParamInterface<UnusableFile> {};

TEST_P(AppSettingsUnusableFile, IsReportedAndKeptUntilTheNextSave) {
    putFile(path, GetParam().bytes);
    EXPECT_EQ(printedByLoading(),
              std::string("⚠️ Failed to load config: ") + GetParam().reason + '\n');
    EXPECT_EQ(fileBytes(path), GetParam().bytes);

    AppSettings settings(home.path() + u"/other.json"_s);
    settings.setFontSize(20);
    settings.testConfigURL = path;
    settings.loadSettings();
    EXPECT_EQ(settings.fontSize(), 20.0);
    EXPECT_EQ(fileBytes(path), GetParam().bytes);

    EXPECT_EQ(printedBySaving(settings), "");
    EXPECT_EQ(AppSettings(path).fontSize(), 20.0);
}

INSTANTIATE_TEST_SUITE_P(
    Files, AppSettingsUnusableFile,
    testing::Values(
        UnusableFile{"UnknownScrollRate", R"({"fontSize": 30, "scrollRate": "turbo"})",
                     "Invalid value for \"scrollRate\""},
        UnusableFile{"WrongType", R"({"fontSize": 30, "autoScrollEnabled": 1})",
                     "Invalid value for \"autoScrollEnabled\""},
        UnusableFile{"Truncated", R"({"fontSize": 30, "wid)", "Invalid JSON at byte 22"},
        UnusableFile{"Empty", "", "Invalid JSON at byte 1"},
        UnusableFile{"Binary",
                     QByteArray("\x7f"
                                "ELF\0\0",
                                6),
                     "Invalid JSON at byte 1"},
        UnusableFile{"DeeplyNested", QByteArray(2'000'000, '['), "The JSON is nested too deeply"},
        UnusableFile{"Huge", QByteArray(16'777'217, ' '),
                     "The file is larger than 16777216 bytes"}),
    byMember<&UnusableFile::name>);

/// A file that somebody wrote by hand, with a mistake.
class AppSettingsCopy : public AppSettingsFile {
protected:
    const QByteArray typo = R"({"fontSize": 20,, "width": 500})";
    const QString copy = path + u".unreadable"_s;

    QStringList names() const { return QDir(home.path()).entryList(QDir::Files, QDir::Name); }

    /// What a start of the program does. Returns what it logs.
    QStringList loadAndSave() const {
        const RecordedLog log;
        testing::internal::CaptureStdout();
        const AppSettings settings(path);
        settings.save();
        testing::internal::GetCapturedStdout();
        return log.entries();
    }

    static QStringList logged(const QString& message) {
        return {u"app.tessaline.Tessaline.settings: "_s + message};
    }

    static QStringList isKeptAs(const QString& name) {
        return logged(u"The configuration that cannot be used is kept as "_s + name);
    }

    static QStringList cannotBeCopied(const QString& reason) {
        return logged(u"No copy can be made of the configuration that cannot be used: "_s + reason);
    }
};

TEST_F(AppSettingsCopy, IsKeptWhenTheFileIsSavedOver) {
    putFile(path, typo);
    EXPECT_EQ(loadAndSave(), isKeptAs(copy));
    EXPECT_NE(fileBytes(path), typo);
    EXPECT_EQ(fileBytes(copy), typo);
    EXPECT_EQ(loadAndSave(), QStringList());
}

TEST_F(AppSettingsCopy, HasTheSamePermissions) {
    for (const auto permissions : {QFile::Permissions(QFile::ReadOwner | QFile::WriteOwner),
                                   QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup}) {
        QFile::remove(copy);
        putFile(path, typo);
        ASSERT_TRUE(QFile::setPermissions(path, permissions));
        loadAndSave();
        struct stat status {};
        ASSERT_EQ(::stat(QFile::encodeName(copy).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, permissions & QFile::ReadGroup ? 0640U : 0600U);
    }
}

TEST_F(AppSettingsCopy, NeverReplacesAnEarlierOne) {
    const QByteArray other = "no JSON either";
    for (const QByteArray& bytes : {typo, other}) {
        putFile(path, bytes);
        loadAndSave();
    }
    putFile(path, "the third");
    EXPECT_EQ(loadAndSave(), isKeptAs(copy + u"-3"_s));
    EXPECT_EQ(fileBytes(copy), typo);
    EXPECT_EQ(fileBytes(copy + u"-2"_s), other);
    EXPECT_EQ(fileBytes(copy + u"-3"_s), "the third");
}

TEST_F(AppSettingsCopy, IsMadeOnce) {
    putFile(path, "something else");
    loadAndSave();
    for (int start = 0; start < 3; ++start) {
        putFile(path, typo);
        EXPECT_EQ(loadAndSave(), isKeptAs(copy + u"-2"_s));
    }
    EXPECT_EQ(names(), (QStringList{u"config.json"_s, u"config.json.unreadable"_s,
                                    u"config.json.unreadable-2"_s}));
}

TEST_F(AppSettingsCopy, NeverFollowsALink) {
    const QString precious = home.path() + u"/precious"_s;
    const QString missing = home.path() + u"/missing"_s;
    putFile(precious, typo);
    ASSERT_TRUE(QFile::link(precious, copy));
    ASSERT_TRUE(QFile::link(missing, copy + u"-2"_s));
    putFile(path, typo);
    EXPECT_EQ(loadAndSave(), isKeptAs(copy + u"-3"_s));
    EXPECT_EQ(fileBytes(precious), typo);
    EXPECT_FALSE(QFileInfo::exists(missing));
    EXPECT_EQ(fileBytes(copy + u"-3"_s), typo);
}

TEST_F(AppSettingsCopy, IsMadeOfAFileThatIsTooLargeToo) {
    const QByteArray large(jsonFileLimit + 1, ' ');
    putFile(path, large);
    EXPECT_EQ(loadAndSave(), isKeptAs(copy));
    EXPECT_TRUE(fileBytes(copy) == large);
}

TEST_F(AppSettingsCopy, IsNotNeededOfWhatIsNoFile) {
    ASSERT_TRUE(QDir().mkdir(path));
    EXPECT_EQ(loadAndSave(), QStringList());
}

TEST_F(AppSettingsCopy, MissingMakesEverySaveKeepTheFileUntilSomethingChanges) {
    const SmallDisk disk(home.path());
    if (!disk.exists())
        GTEST_SKIP() << "mounting a small disk needs more rights than this user has";
    const QByteArray large = typo.repeated(500);
    putFile(path, large);
    disk.fill();
    EXPECT_EQ(loadAndSave(), cannotBeCopied(u"No space left on device"_s));
    EXPECT_EQ(fileBytes(path), large);
    EXPECT_FALSE(QFileInfo::exists(copy));

    const RecordedLog log;
    testing::internal::CaptureStdout();
    AppSettings settings(path);
    settings.setSourceEnabled(SourceType::obsidian, false);
    EXPECT_EQ(fileBytes(path), large);
    disk.empty();
    settings.setFontSize(21);
    settings.setFontSize(16);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(log.entries(), cannotBeCopied(u"No space left on device"_s) + isKeptAs(copy));
    EXPECT_EQ(fileBytes(copy), large);
    EXPECT_EQ(AppSettings(path).fontSize(), 16.0);
}

TEST_F(AppSettingsFile, LoadsAFileOfTheGreatestSize) {
    const QByteArray json = R"({"fontSize": 20})";
    putFile(path, json + QByteArray(16'777'216 - json.size(), ' '));
    EXPECT_EQ(AppSettings(path).fontSize(), 20.0);
}

constexpr auto openToAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                           QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                           QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

// Permissions do not bind the superuser, hence the child process that gives such powers up.
TEST_F(AppSettingsFile, AFileThatMustNotBeReadIsReportedAndKept) {
    const QByteArray json = R"({"fontSize": 20})";
    putFile(path, json);
    ASSERT_TRUE(QFile::setPermissions(home.path(), openToAll));
    ASSERT_TRUE(QFile::setPermissions(path, {}));
    EXPECT_EXIT(
        {
            becomeOrdinaryUser();
            const bool isReported =
                printedByLoading() == "⚠️ Failed to load config: Permission denied\n";
            ::_exit(isReported && !HasFailure() ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner));
    EXPECT_EQ(fileBytes(path), json);
    EXPECT_FALSE(QFileInfo::exists(path + u".unreadable"_s));
}

TEST_F(AppSettingsFile, AFolderInItsPlaceIsReportedAndKept) {
    ASSERT_TRUE(QDir().mkdir(path));
    EXPECT_EQ(printedByLoading(), "⚠️ Failed to load config: Not a regular file\n");
    EXPECT_EQ(printedBySaving(AppSettings(path)), "❌ Failed to save config: Not a regular file\n");
    EXPECT_TRUE(QFileInfo(path).isDir());
}

TEST_F(AppSettingsFile, AFifoInItsPlaceIsReportedAndKeptWithoutBlocking) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(printedByLoading(), "⚠️ Failed to load config: Not a regular file\n");
    EXPECT_EQ(printedBySaving(AppSettings(path)), "❌ Failed to save config: Not a regular file\n");
    EXPECT_FALSE(QFileInfo(path).isFile());
}

TEST_F(AppSettingsFile, ALinkToADeviceIsReportedAndKept) {
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, path));
    EXPECT_EQ(printedByLoading(), "⚠️ Failed to load config: Not a regular file\n");
    EXPECT_TRUE(QFileInfo(path).isSymLink());
}

TEST_F(AppSettingsFile, ASymbolicLinkStaysOneAndItsTargetIsLoadedAndSaved) {
    const QString target = home.path() + u"/dotfiles.json"_s;
    putFile(target, R"({"fontSize": 20})");
    ASSERT_TRUE(QFile::link(target, path));
    AppSettings settings(path);
    EXPECT_EQ(settings.fontSize(), 20.0);
    settings.setFontSize(21);
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(AppSettings(target).fontSize(), 21.0);
}

TEST_F(AppSettingsFile, ADanglingLinkCountsAsNoFileAndReceivesTheDefaults) {
    const QString target = home.path() + u"/dotfiles.json"_s;
    ASSERT_TRUE(QFile::link(target, path));
    EXPECT_EQ(printedByLoading(), "");
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_TRUE(fileBytes(target).contains("\"fontSize\": 16.0"));
}

TEST_F(AppSettingsFile, AFolderThatCannotBeCreatedIsReportedByTheSave) {
    putFile(home.path() + u"/Library"_s, "in the way");
    testing::internal::CaptureStdout();
    AppSettings settings;
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "❌ Failed to save config: Not a directory\n");
    settings.setFontSize(20);
    EXPECT_EQ(printedBySaving(settings), "❌ Failed to save config: Not a directory\n");
    EXPECT_EQ(settings.fontSize(), 20.0);
}

TEST_F(AppSettingsFile, AMissingFolderOfTheTestFileIsReportedByTheSave) {
    path = home.path() + u"/missing/config.json"_s;
    EXPECT_THAT(printedByLoading(), testing::MatchesRegex("❌ Failed to save config: [^\n]+\n"));
    EXPECT_FALSE(QFileInfo::exists(home.path() + u"/missing"_s));
}

TEST_F(AppSettingsFile, AnEmptyPathIsReportedByTheSave) {
    path.clear();
    EXPECT_THAT(printedByLoading(), testing::MatchesRegex("❌ Failed to save config: [^\n]+\n"));
}

} // namespace
} // namespace tessaline

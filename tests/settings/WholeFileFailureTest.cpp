#include "settings/AppSettings.h"
#include "settings/WholeFile.h"

#include "support/OrdinaryUser.h"
#include "support/SmallDisk.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Disks, folders and files that refuse. Permissions do not bind the superuser: what is about them
/// runs in a child process, which gives such powers up.
class WholeFileFailure : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"file"_s);

    /// Ends the child process of a death test.
    [[noreturn]] static void endWith(bool success) { ::_exit(success ? 0 : 1); }

    /// Longer files fail halfway through, as on a disk that fills up.
    static void limitFileSizes(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, bytes};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) ::_exit(2);
    }

    void setMode(const QString& file, QFile::Permissions permissions) const {
        ASSERT_TRUE(QFile::setPermissions(file, permissions));
    }

    static constexpr auto readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    static constexpr auto writable = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    static constexpr auto enterable = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
};

TEST_F(WholeFileFailure, AWritableFileInAReadOnlyFolderIsOverwrittenInPlace) {
    putFile(path, "longer than the new text");
    setMode(path, readable | writable);
    setMode(folder.path(), readable | enterable);
    EXPECT_EXIT(
        {
            becomeOrdinaryUser();
            endWith(writeWholeFile(path, "new") && readWholeFile(path) == "new");
        },
        testing::ExitedWithCode(0), "");
    setMode(folder.path(), readable | writable | enterable);
    EXPECT_EQ(fileBytes(path), "new");
}

TEST_F(WholeFileFailure, NoFileAppearsInAReadOnlyFolder) {
    setMode(folder.path(), readable | enterable);
    EXPECT_EXIT(
        {
            becomeOrdinaryUser();
            QString error;
            endWith(!writeWholeFile(path, "new", &error) && error == u"Permission denied"_s);
        },
        testing::ExitedWithCode(0), "");
    setMode(folder.path(), readable | writable | enterable);
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(WholeFileFailure, AReadOnlyFileIsKept) {
    putFile(path, "old");
    setMode(path, readable);
    setMode(folder.path(), readable | writable | enterable);
    EXPECT_EXIT(
        {
            becomeOrdinaryUser();
            QString error;
            endWith(!writeWholeFile(path, "new", &error) && !error.isEmpty() &&
                    !error.contains(u'\n') && readWholeFile(path) == "old");
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(fileBytes(path), "old");
}

TEST_F(WholeFileFailure, AnUnreadableFileIsDescribed) {
    putFile(path, "old");
    setMode(path, {});
    setMode(folder.path(), readable | writable | enterable);
    EXPECT_EXIT(
        {
            becomeOrdinaryUser();
            QString error;
            endWith(readWholeFile(path, &error) == std::nullopt && error == u"Permission denied"_s);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(WholeFileFailure, AWriteThatStopsHalfwayKeepsTheOldFileAndLeavesNothingBeside) {
    putFile(path, "old");
    EXPECT_EXIT(
        {
            limitFileSizes(4096);
            QString error;
            endWith(!writeWholeFile(path, QByteArray(100'000, 'x'), &error) && !error.isEmpty());
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(fileBytes(path), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"file"_s});
}

TEST_F(WholeFileFailure, AFullDiskIsReportedAndKeepsTheOldSettings) {
    const SmallDisk disk(folder.path());
    if (!disk.exists())
        GTEST_SKIP() << "mounting a small disk needs more rights than this user has";
    AppSettings settings(path);
    const QByteArray before = fileBytes(path);
    disk.fill();
    testing::internal::CaptureStdout();
    settings.setFontSize(20);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "❌ Failed to save config: No space left on device\n");
    EXPECT_EQ(fileBytes(path), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), (QStringList{u"file"_s, u"filler"_s}));
    EXPECT_EQ(settings.fontSize(), 20.0);
}

} // namespace
} // namespace tessaline

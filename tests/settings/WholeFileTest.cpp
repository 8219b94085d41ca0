#include "settings/WholeFile.h"

#include "support/TestFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class WholeFile : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"file"_s);

    QStringList names() const {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

TEST_F(WholeFile, ReadsAllBytes) {
    const QByteArray bytes("a\0\r\n\xff", 5);
    putFile(path, bytes);
    EXPECT_EQ(readWholeFile(path), bytes);
}

TEST_F(WholeFile, ReadsAnEmptyFileAsNoBytes) {
    putFile(path, "");
    EXPECT_EQ(readWholeFile(path), QByteArray());
}

TEST_F(WholeFile, ReadsFilesOfTheSystemThatTellNoSize) {
    if (!QFileInfo::exists(u"/proc/self/status"_s)) GTEST_SKIP() << "no /proc here";
    const auto bytes = readWholeFile(u"/proc/self/status"_s);
    ASSERT_TRUE(bytes.has_value());
    EXPECT_TRUE(bytes->startsWith("Name:"));
}

TEST_F(WholeFile, ReadsAFileNamedInAnyScript) {
    path = folder.filePath(u"скрипт 🎤.md"_s);
    EXPECT_TRUE(writeWholeFile(path, "text"));
    EXPECT_EQ(readWholeFile(path), "text");
}

TEST_F(WholeFile, RefusesAFileAboveTheLimit) {
    putFile(path, "12345");
    QString error;
    EXPECT_EQ(readWholeFile(path, &error, 5), "12345");
    EXPECT_EQ(error, QString());
    EXPECT_EQ(readWholeFile(path, &error, 4), std::nullopt);
    EXPECT_EQ(error, u"The file is larger than 4 bytes"_s);
}

TEST_F(WholeFile, RefusesAFileOfManyTerabytesWithoutReadingIt) {
    putFile(path, "");
    if (!QFile::resize(path, qint64{4} << 40))
        GTEST_SKIP() << "this file system has no sparse files of that size";
    QString error;
    EXPECT_EQ(readWholeFile(path, &error), std::nullopt);
    EXPECT_EQ(error, u"The file is larger than 1073741824 bytes"_s);
}

TEST_F(WholeFile, WritesANewFile) {
    EXPECT_TRUE(writeWholeFile(path, "text"));
    EXPECT_EQ(fileBytes(path), "text");
    EXPECT_EQ(names(), QStringList{u"file"_s});
}

TEST_F(WholeFile, ReplacesALongerFileAndLeavesNothingBeside) {
    putFile(path, "longer than the new text");
    EXPECT_TRUE(writeWholeFile(path, "text"));
    EXPECT_EQ(fileBytes(path), "text");
    EXPECT_EQ(names(), QStringList{u"file"_s});
}

TEST_F(WholeFile, WritesAnEmptyFile) {
    putFile(path, "text");
    EXPECT_TRUE(writeWholeFile(path, QByteArray()));
    EXPECT_EQ(fileBytes(path), "");
}

TEST_F(WholeFile, WritesWhatComesInPieces) {
    QByteArrayList pieces{"a talk ", QByteArray(100'000, 'x'), " in pieces"};
    const QByteArray whole = pieces.join();
    const auto next = [&] { return pieces.isEmpty() ? QByteArray() : pieces.takeFirst(); };
    EXPECT_TRUE(writeWholeFile(path, next));
    EXPECT_EQ(fileBytes(path), whole);
}

TEST_F(WholeFile, KeepsTheFilesPermissions) {
    putFile(path, "text");
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(path, permissions));
    EXPECT_TRUE(writeWholeFile(path, "new"));
    EXPECT_EQ(QFile::permissions(path) & ~(QFile::ReadUser | QFile::WriteUser), permissions);
}

TEST_F(WholeFile, FollowsAChainOfRelativeLinks) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"inner"_s));
    putFile(folder.filePath(u"inner/target"_s), "old");
    ASSERT_TRUE(QFile::link(u"target"_s, folder.filePath(u"inner/second"_s)));
    ASSERT_TRUE(QFile::link(u"inner/second"_s, path));
    EXPECT_TRUE(writeWholeFile(path, "new"));
    EXPECT_EQ(fileBytes(folder.filePath(u"inner/target"_s)), "new");
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_TRUE(QFileInfo(folder.filePath(u"inner/second"_s)).isSymLink());
    EXPECT_EQ(readWholeFile(path), "new");
}

TEST_F(WholeFile, CreatesTheTargetOfADanglingLink) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"inner"_s));
    ASSERT_TRUE(QFile::link(u"inner/target"_s, path));
    EXPECT_TRUE(writeWholeFile(path, "new"));
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(fileBytes(folder.filePath(u"inner/target"_s)), "new");
    EXPECT_EQ(names(), (QStringList{u"file"_s, u"inner"_s}));
}

TEST_F(WholeFile, FailsOnALinkIntoAMissingFolderAndKeepsTheLink) {
    ASSERT_TRUE(QFile::link(u"missing/target"_s, path));
    QString error;
    EXPECT_FALSE(writeWholeFile(path, "new", &error));
    EXPECT_EQ(error, u"No such file or directory"_s);
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(readWholeFile(path, &error), std::nullopt);
    EXPECT_EQ(error, u"No such file or directory"_s);
}

TEST_F(WholeFile, FailsOnALoopOfLinksAndKeepsThem) {
    ASSERT_TRUE(QFile::link(u"other"_s, path));
    ASSERT_TRUE(QFile::link(u"file"_s, folder.filePath(u"other"_s)));
    QString error;
    EXPECT_FALSE(writeWholeFile(path, "new", &error));
    EXPECT_EQ(error, u"Too many levels of symbolic links"_s);
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(readWholeFile(path), std::nullopt);
}

TEST_F(WholeFile, RefusesAFolder) {
    QString readError;
    QString writeError;
    EXPECT_EQ(readWholeFile(folder.path(), &readError), std::nullopt);
    EXPECT_FALSE(writeWholeFile(folder.path(), "new", &writeError));
    EXPECT_EQ(readError, u"Not a regular file"_s);
    EXPECT_EQ(writeError, u"Not a regular file"_s);
}

TEST_F(WholeFile, RefusesAFifoWithoutWaitingForItsOtherEnd) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QString error;
    EXPECT_EQ(readWholeFile(path, &error), std::nullopt);
    EXPECT_EQ(error, u"Not a regular file"_s);
    EXPECT_FALSE(writeWholeFile(path, "new"));
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(WholeFile, RefusesDevices) {
    QString error;
    EXPECT_EQ(readWholeFile(u"/dev/zero"_s, &error), std::nullopt);
    EXPECT_EQ(error, u"Not a regular file"_s);
    EXPECT_FALSE(writeWholeFile(u"/dev/null"_s, "new"));
    EXPECT_FALSE(QFileInfo(u"/dev/null"_s).isFile());
}

TEST_F(WholeFile, DescribesAMissingFileAndAMissingFolder) {
    QString error;
    EXPECT_EQ(readWholeFile(path, &error), std::nullopt);
    EXPECT_EQ(error, u"No such file or directory"_s);
    error.clear();
    EXPECT_FALSE(writeWholeFile(folder.filePath(u"missing/file"_s), "new", &error));
    EXPECT_EQ(error, u"No such file or directory"_s);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(WholeFile, FailsOnAnEmptyPath) {
    QString error;
    EXPECT_EQ(readWholeFile(QString(), &error), std::nullopt);
    EXPECT_FALSE(error.isEmpty());
    error.clear();
    EXPECT_FALSE(writeWholeFile(QString(), "new", &error));
    EXPECT_FALSE(error.isEmpty());
}

} // namespace
} // namespace tessaline

#include "sources/obsidian/FileCopy.h"

#include "support/NotAFile.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

class FileCopyTest : public ::testing::Test {
protected:
    FileCopyTest() {
        QDir().mkdir(folder.filePath(u"to"_s));
        putFile(source, "new");
    }

    /// Copies; returns why it could not, or nothing.
    QString copy() {
        QString error;
        const bool done = replaceWithCopy(source, target, &error);
        EXPECT_EQ(done, error.isEmpty());
        return error;
    }

    QStringList leftInTargetFolder() const {
        return QDir(folder.filePath(u"to"_s))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder;
    const QString source = folder.filePath(u"source"_s);
    const QString target = folder.filePath(u"to/target 'a' \"b\" ü"_s);
};

TEST_F(FileCopyTest, MakesAFile) {
    EXPECT_EQ(copy(), QString());
    EXPECT_EQ(fileBytes(target), "new");
    EXPECT_EQ(leftInTargetFolder(), QStringList{QFileInfo(target).fileName()});
}

TEST_F(FileCopyTest, ReplacesAFile) {
    putFile(target, "longer than the new one");
    EXPECT_EQ(copy(), QString());
    EXPECT_EQ(fileBytes(target), "new");
}

TEST_F(FileCopyTest, ReplacesALinkAndNotWhatItLeadsTo) {
    const QString mine = folder.filePath(u"mine"_s);
    putFile(mine, "mine");
    ASSERT_TRUE(QFile::link(mine, target));
    EXPECT_EQ(copy(), QString());
    EXPECT_EQ(fileBytes(mine), "mine");
    EXPECT_FALSE(QFileInfo(target).isSymLink());
    EXPECT_EQ(fileBytes(target), "new");
}

TEST_F(FileCopyTest, ReplacesALinkThatLeadsNowhere) {
    placeNotAFile(NotAFile::danglingLink, target);
    EXPECT_EQ(copy(), QString());
    EXPECT_EQ(fileBytes(target), "new");
}

TEST_F(FileCopyTest, LeavesAFolderAlone) {
    ASSERT_TRUE(QDir().mkdir(target));
    putFile(target + "/note"_L1, "the user's");
    EXPECT_EQ(copy(), target + ": Is a directory"_L1);
    EXPECT_EQ(fileBytes(target + "/note"_L1), "the user's");
    EXPECT_EQ(leftInTargetFolder().size(), 1);
}

TEST_F(FileCopyTest, KeepsTheOldTargetWhenTheSourceCannotBeRead) {
    putFile(target, "old");
    ASSERT_TRUE(QFile::remove(source));
    EXPECT_EQ(copy(), source + ": No such file or directory"_L1);
    EXPECT_EQ(fileBytes(target), "old");
}

TEST_F(FileCopyTest, FailsWhereTheTargetsFolderIsMissing) {
    QString error;
    const QString missing = folder.filePath(u"missing/target"_s);
    EXPECT_FALSE(replaceWithCopy(source, missing, &error));
    EXPECT_EQ(error, missing + ": No such file or directory"_L1);
}

TEST_F(FileCopyTest, CreatesFoldersWithThoseAbove) {
    QString error;
    EXPECT_TRUE(createFolders(folder.filePath(u"a 'b'/ü/c"_s), &error));
    EXPECT_TRUE(createFolders(folder.filePath(u"a 'b'/ü/c"_s), &error));
    EXPECT_EQ(error, QString());
    EXPECT_TRUE(QFileInfo(folder.filePath(u"a 'b'/ü/c"_s)).isDir());
}

TEST_F(FileCopyTest, TellsWhyAFolderCannotBeCreated) {
    QString error;
    EXPECT_FALSE(createFolders(source + "/below"_L1, &error));
    EXPECT_EQ(error, source + "/below: Not a directory"_L1);
}

} // namespace
} // namespace tessaline

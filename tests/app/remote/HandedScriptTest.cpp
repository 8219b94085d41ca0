#include "app/remote/HandedScript.h"

#include "app/remote/TemporaryFolder.h"
#include "settings/FilePath.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class HandedScriptTest : public testing::Test {
protected:
    HandedScriptTest() { putFile(path, "text"); }

    QTemporaryDir folder;
    QString path = folder.filePath(u"talk.md"_s);
};

TEST_F(HandedScriptTest, IsAFileThatOthersSeeToo) {
    EXPECT_TRUE(HandedScript::isSameForAll(path));
    const QString link = folder.filePath(u"link.md"_s);
    ASSERT_TRUE(QFile::link(u"talk.md"_s, link));
    EXPECT_TRUE(HandedScript::isSameForAll(link));
    EXPECT_EQ(HandedScript(path).path(), path);
}

TEST_F(HandedScriptTest, IsAFileWhoseNameIsNoText) {
    const QString foreign = folder.path() + pathText("/caf\xE9.md");
    ASSERT_EQ(std::rename(qPrintable(path), nativePath(foreign).constData()), 0);
    EXPECT_TRUE(HandedScript::isSameForAll(foreign));
}

TEST_F(HandedScriptTest, IsNoFileThatIsMissingOrOfAnotherKind) {
    EXPECT_FALSE(HandedScript::isSameForAll(folder.filePath(u"missing"_s)));
    EXPECT_FALSE(HandedScript::isSameForAll(folder.path()));
    const QString fifo = folder.filePath(u"fifo"_s);
    ASSERT_EQ(::mkfifo(qPrintable(fifo), 0600), 0);
    EXPECT_FALSE(HandedScript::isSameForAll(fifo));
}

TEST_F(HandedScriptTest, IsNoFileThatEachProcessHasForItself) {
    const int descriptor = ::open(qPrintable(path), O_RDONLY);
    const QString ours = u"/dev/fd/%1"_s.arg(descriptor);
    const QString link = folder.filePath(u"link.md"_s);
    ASSERT_TRUE(QFile::link(ours, link));
    ASSERT_TRUE(QFileInfo(link).isFile());
    for (const QString& file : {ours, link, u"/proc/self/fd/%1"_s.arg(descriptor),
                                u"/proc/self/status"_s, u"/proc/thread-self/status"_s})
        EXPECT_FALSE(HandedScript::isSameForAll(file)) << file.toStdString();
    ::close(descriptor);
}

TEST_F(HandedScriptTest, IsAPrivateFileForATextUntilItHasBeenRead) {
    QString spool;
    {
        const HandedScript script(u"żółć"_s, {folder.path()});
        spool = script.path();
        EXPECT_TRUE(spool.startsWith(folder.path()));
        EXPECT_EQ(fileBytes(spool), "żółć");
        struct stat status {};
        ASSERT_EQ(::stat(qPrintable(spool), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0600u);
    }
    EXPECT_FALSE(QFile::exists(spool));
}

TEST_F(HandedScriptTest, IsWhereThereIsRoom) {
    const HandedScript script(u"text"_s, {folder.filePath(u"missing"_s), folder.path()});
    EXPECT_EQ(QFileInfo(script.path()).path(), folder.path());
    EXPECT_EQ(fileBytes(script.path()), "text");
}

TEST_F(HandedScriptTest, SaysWhyItIsNowhere) {
    const QString missing = folder.filePath(u"missing"_s);
    const HandedScript script(u"text"_s, {missing});
    EXPECT_EQ(script.path(), QString());
    EXPECT_EQ(script.problem(),
              u"cannot write %1/script-XXXXXX.md: No such file or directory"_s.arg(missing));
}

TEST(TemporaryFolder, IsTheSystemsWhereTheNamedOneIsNotThere) {
    const QByteArray before = qgetenv("TMPDIR");
    QTemporaryDir folder;
    qputenv("TMPDIR", folder.path().toUtf8());
    EXPECT_EQ(temporaryFolder(), folder.path());
    qputenv("TMPDIR", folder.path().toUtf8() + "/missing");
    EXPECT_EQ(temporaryFolder(), u"/tmp"_s);
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
}

} // namespace
} // namespace tessaline

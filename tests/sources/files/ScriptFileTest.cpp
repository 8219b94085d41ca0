#include "sources/files/ScriptFile.h"

#include "platform/qt/QtProcessRunner.h"
#include "settings/FilePath.h"
#include "support/FakeProcessRunner.h"
#include "support/NotAFile.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr char zip[] = "PK\x03\x04 and so on";

class ScriptFile : public testing::Test {
protected:
    QString write(const QString& name, const QByteArray& bytes) {
        putFile(folder.filePath(name), bytes);
        return folder.filePath(name);
    }

    QString problemOf(const QString& path) {
        const ReadText read = readScriptFile(path, processes);
        EXPECT_EQ(read.text, std::nullopt);
        return read.problem;
    }

    /// What is said of a document after pandoc has ended so.
    QString problemAfter(const ProcessResult& result) {
        processes.result = result;
        return problemOf(write(u"talk.docx"_s, zip));
    }

    QTemporaryDir folder;
    FakeProcessRunner processes;
};

TEST_F(ScriptFile, IsTextWhateverItsName) {
    EXPECT_EQ(readScriptFile(write(u"a.md"_s, "# Ünï"), processes).text, u"# Ünï"_s);
    EXPECT_EQ(readScriptFile(write(u"b"_s, "caf\xE9"), processes).text, u"café"_s);
    EXPECT_EQ(readScriptFile(write(u"c.docx"_s, "No document"), processes).text, u"No document"_s);
    EXPECT_EQ(readScriptFile(write(u"d.txt"_s, ""), processes).text, QString());
    EXPECT_TRUE(processes.calls.empty());
}

TEST_F(ScriptFile, IsNoFolderNoPipeAndNotMissing) {
    const QString path = folder.filePath(u"talk.md"_s);
    EXPECT_EQ(problemOf(path), u"No such file or directory"_s);
    placeNotAFile(NotAFile::fifo, path);
    EXPECT_EQ(problemOf(path), u"Not a regular file"_s);
    EXPECT_EQ(problemOf(folder.path()), u"it is a folder"_s);
    EXPECT_EQ(problemOf(u"/dev/zero"_s), u"Not a regular file"_s);
}

TEST_F(ScriptFile, IsRefusedBySizeAlone) {
    const QString path = write(u"film.md"_s, "text");
    QFile film(path);
    ASSERT_TRUE(film.resize(qint64{2} << 30)); // a hole: to read it all would take seconds
    EXPECT_EQ(problemOf(path), u"it is larger than 64 MiB"_s);
    EXPECT_EQ(readScriptFile(write(u"a.md"_s, "12345"), processes, 4).problem,
              u"it is larger than 0 MiB"_s);
}

TEST_F(ScriptFile, IsRefusedByItsBeginning) {
    EXPECT_EQ(problemOf(write(u"a.md"_s, QByteArray(100, '\0'))), u"it is not text"_s);
    EXPECT_EQ(problemOf(write(u"a.zip"_s, QByteArray(zip) + '\0')), u"it is not text"_s);
}

TEST_F(ScriptFile, ThatIsADocumentIsReadByPandocWithinLimits) {
    processes.result = {u"# Title\n\nText"_s, {}, 0};
    const QString path = write(u"-My Talk.DOCX"_s, zip);
    EXPECT_TRUE(isDocumentFile(path));
    EXPECT_EQ(readScriptFile(path, processes).text, u"# Title\n\nText"_s);
    ASSERT_EQ(processes.calls.size(), 1u);
    EXPECT_EQ(processes.calls[0],
              (FakeProcessRunner::Call{u"pandoc"_s,
                                       {u"--sandbox"_s, u"--from"_s, u"docx"_s, u"--to"_s,
                                        u"gfm-raw_html"_s, u"--wrap=none"_s, path}}));
    using namespace std::chrono_literals;
    EXPECT_EQ(processes.lastLimits,
              (ProcessLimits{.time = 20s, .outputBytes = 64 << 20, .memoryBytes = 1 << 30}));
    readScriptFile(write(u"talk.odt"_s, zip), processes);
    EXPECT_EQ(processes.calls.back().arguments.at(2), u"odt"_s);
    EXPECT_FALSE(isDocumentFile(write(u"b.docx"_s, "text")));
    EXPECT_FALSE(isDocumentFile(folder.path()));
}

TEST_F(ScriptFile, ThatIsADocumentSaysInOneLineWhyItCannotBeRead) {
    EXPECT_EQ(problemAfter({{}, u"execvp: No such file"_s, -1, false, {}}),
              u"install pandoc, the program that reads .docx and .odt for Tessaline"_s);
    EXPECT_EQ(problemAfter({{}, {}, -1, true, ProcessLimits::Kind::time}),
              u"pandoc took longer than 20 seconds"_s);
    EXPECT_EQ(problemAfter({{}, {}, -1, true, ProcessLimits::Kind::output}),
              u"its text is larger than 64 MiB"_s);
    EXPECT_EQ(problemAfter({{}, u"[WARNING] x\npandoc: out of memory"_s, 251}),
              u"pandoc cannot read it: out of memory"_s);
    EXPECT_EQ(problemAfter({{}, {}, -1}), u"pandoc cannot read it: it was stopped"_s);
    EXPECT_EQ(problemAfter({{}, u"Unknown option --sandbox.\nTry pandoc --help."_s, 6}),
              u"pandoc cannot read it: version 2.15 or newer is needed"_s);
    EXPECT_EQ(problemOf(folder.path() + pathText("/\xFF.odt")), u"No such file or directory"_s);
}

TEST_F(ScriptFile, IsCalledByItsNameAlone) {
    EXPECT_EQ(shownFileName(u"/home/ann/My Talk.md"_s), u"My Talk.md"_s);
    EXPECT_EQ(shownFileName(u"/home/ann/"_s), u"ann"_s);
    EXPECT_EQ(briefFileName(u"/home/ann/talk.md"_s), u"talk.md"_s);
    EXPECT_EQ(briefFileName(u"/"_s + u"a"_s.repeated(100) + u".md"_s),
              u"a"_s.repeated(20) + u'…' + u"a"_s.repeated(16) + u".md"_s);
    EXPECT_EQ(briefFileName(u"/a"_s + u"🕰"_s.repeated(50)),
              u"a"_s + u"🕰"_s.repeated(9) + u'…' + u"🕰"_s.repeated(9));
}

TEST(PlainMarkdown, HasNothingThatOnlyProgramsRead) {
    EXPECT_EQ(plainMarkdown(u"5 \\* 3 \\# \\$1 C:\\\\a, see [the page](http://x.y/z) and [1]\n\n"
                            "&nbsp;\n\n![alt](a.png) \\[x\\](y)"_s),
              u"5 * 3 # $1 C:\\a, see the page and [1]\n\n\n\n![alt](a.png) [x](y)"_s);
}

TEST(Pandoc, ReadsARealDocument) {
    const QString pandoc = QStandardPaths::findExecutable(u"pandoc"_s);
    if (pandoc.isEmpty()) GTEST_SKIP() << "pandoc is not installed";
    const QTemporaryDir folder;
    putFile(folder.filePath(u"talk.md"_s), "# Title\n\nSome **bold** text, 5 \\* 3.\n\n- one\n");
    QtProcessRunner processes;
    for (const QString& name : {u"talk.docx"_s, u"talk.odt"_s}) {
        const QString path = folder.filePath(name);
        ASSERT_EQ(processes.run(pandoc, {u"-o"_s, path, folder.filePath(u"talk.md"_s)}).exitCode,
                  0);
        const ReadText read = readScriptFile(path, processes);
        EXPECT_EQ(read.problem, QString());
        EXPECT_EQ(read.text, u"# Title\n\nSome **bold** text, 5 * 3.\n\n-   one"_s)
            << name.toStdString();
    }
}

} // namespace
} // namespace tessaline

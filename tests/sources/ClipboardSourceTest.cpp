#include "sources/ClipboardSource.h"

#include "settings/SupportFolder.h"
#include "support/CaseName.h"
#include "support/FakePasteboard.h"
#include "support/NotAFile.h"
#include "support/OrdinaryUser.h"
#include "support/PrintQt.h"
#include "support/RecordedLog.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <vector>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::SizeIs;

namespace tessaline {
namespace {

class ClipboardSourceTest : public ::testing::Test {
protected:
    void watch(ClipboardSource& watched) {
        watched.startWatching([this](const QString& text) { delivered.push_back(text); });
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"missing/folders/clipboard-content.md"_s);
    FakePasteboard pasteboard;
    ClipboardSource source{pasteboard, path};
    std::vector<QString> delivered;
};

TEST_F(ClipboardSourceTest, KeepsItsFileInTheSupportFolder) {
    EXPECT_EQ(ClipboardSource::contentFilePath(),
              homeFolderPath() + "/Library/Application Support/Tessaline/clipboard-content.md"_L1);
}

TEST_F(ClipboardSourceTest, DeliversThePlaceholderWithoutAFile) {
    watch(source);
    EXPECT_THAT(delivered, ElementsAre(u"PLACEHOLDER"_s));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ClipboardSourceTest, DeliversThePlaceholderForAnEmptyFile) {
    source.pasteText(u"abc"_s);
    putFile(path, "");
    watch(source);
    EXPECT_THAT(delivered, ElementsAre(u"PLACEHOLDER"_s));
    EXPECT_EQ(source.currentContent(), u"abc"_s);
}

TEST_F(ClipboardSourceTest, DeliversThePlaceholderForInvalidUtf8) {
    source.pasteText(u"abc"_s);
    putFile(path, "ab\xFF");
    watch(source);
    EXPECT_THAT(delivered, ElementsAre(u"PLACEHOLDER"_s));
    EXPECT_EQ(source.currentContent(), u"abc"_s);
}

TEST_F(ClipboardSourceTest, DeliversThePastedTextAgainAfterARestart) {
    pasteboard.text = u"abc"_s;
    EXPECT_EQ(source.pasteFromClipboard(), u"abc"_s);
    ClipboardSource restarted(pasteboard, path);
    watch(restarted);
    EXPECT_THAT(delivered, ElementsAre(u"abc"_s));
    EXPECT_EQ(restarted.currentContent(), u"abc"_s);
}

TEST_F(ClipboardSourceTest, KeepsTheTextByteForByte) {
    const auto text = u"\uFEFF# Grüße\r\n\tend \0 👋 \n\n"_s;
    source.pasteText(text);
    EXPECT_EQ(fileBytes(path), "\xEF\xBB\xBF# Gr\xC3\xBC\xC3\x9F"
                               "e\r\n\tend \0 \xF0\x9F\x91\x8B \n\n"_ba);
    watch(source);
    EXPECT_THAT(delivered, ElementsAre(text));
}

TEST_F(ClipboardSourceTest, DeliversAPasteWhileWatching) {
    watch(source);
    pasteboard.text = u"abc"_s;
    EXPECT_EQ(source.pasteFromClipboard(), u"abc"_s);
    EXPECT_THAT(delivered, ElementsAre(u"PLACEHOLDER"_s, u"abc"_s));
}

TEST_F(ClipboardSourceTest, KeepsAPasteWhileNotWatchingWithoutCalling) {
    watch(source);
    source.stopWatching();
    delivered.clear();
    EXPECT_EQ(source.pasteText(u"abc"_s), u"abc"_s);
    EXPECT_THAT(delivered, ElementsAre());
    EXPECT_EQ(source.currentContent(), u"abc"_s);
    EXPECT_EQ(fileBytes(path), "abc");
}

class ClipboardSourceNothingToPaste : public ClipboardSourceTest,
                                      public ::testing::WithParamInterface<std::optional<QString>> {
};

TEST_P(ClipboardSourceNothingToPaste, ChangesNothing) {
    source.pasteText(u"abc"_s);
    watch(source);
    delivered.clear();
    putFile(path, "written by someone else");
    pasteboard.text = GetParam();
    EXPECT_EQ(source.pasteFromClipboard(), std::nullopt);
    EXPECT_THAT(delivered, ElementsAre());
    EXPECT_EQ(source.currentContent(), u"abc"_s);
    EXPECT_EQ(fileBytes(path), "written by someone else");
}

INSTANTIATE_TEST_SUITE_P(Pasteboards, ClipboardSourceNothingToPaste,
                         ::testing::Values(std::nullopt, u""_s), byValue);

TEST_F(ClipboardSourceTest, DropsThePreviousCallbackAtANewStart) {
    watch(source);
    std::vector<QString> second;
    source.startWatching([&](const QString& text) { second.push_back(text); });
    source.pasteText(u"abc"_s);
    EXPECT_THAT(delivered, ElementsAre(u"PLACEHOLDER"_s));
    EXPECT_THAT(second, ElementsAre(u"PLACEHOLDER"_s, u"abc"_s));
}

TEST_F(ClipboardSourceTest, ShowsAPasteThatCannotBeSavedAndTriesAgainWithTheNext) {
    const QString obstacle = folder.filePath(u"missing"_s);
    putFile(obstacle, "a file where a folder should be");
    const RecordedLog log;
    watch(source);
    EXPECT_EQ(source.pasteText(u"abc"_s), u"abc"_s);
    EXPECT_THAT(delivered, ElementsAre(u"PLACEHOLDER"_s, u"abc"_s));
    EXPECT_THAT(log.entries(),
                ElementsAre(u"app.tessaline.Tessaline.clipboard: The pasted text is not kept for "
                            "the next start: Not a directory"_s));
    ASSERT_TRUE(QFile::remove(obstacle));
    source.pasteText(u"def"_s);
    EXPECT_EQ(fileBytes(path), "def");
    EXPECT_THAT(log.entries(), SizeIs(1));
}

// Permissions do not bind the superuser, hence the child process that gives such powers up.
TEST_F(ClipboardSourceTest, ShowsAPasteAndSaysSoWhenTheFileIsReadOnly) {
    source.pasteText(u"old"_s);
    ASSERT_TRUE(
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    for (const QString& place :
         {folder.path(), folder.filePath(u"missing"_s), folder.filePath(u"missing/folders"_s)})
        ASSERT_EQ(::chmod(QFile::encodeName(place).constData(), 0777), 0);
    EXPECT_EXIT(
        {
            becomeOrdinaryUser();
            watch(source);
            source.pasteText(u"new"_s);
            source.pasteText(u"newer"_s);
            ::_exit(delivered == std::vector{u"old"_s, u"new"_s, u"newer"_s} ? 0 : 1);
        },
        testing::ExitedWithCode(0),
        "not kept for the next start: The file is not writable\n"
        "[^\n]*not kept for the next start: The file is not writable\n");
    EXPECT_EQ(fileBytes(path), "old");
}

TEST_F(ClipboardSourceTest, DeliversAPasteThatCouldNotBeSavedAtEachNewStart) {
    source.pasteText(u"old"_s);
    placeNotAFile(NotAFile::folder, path);
    source.pasteText(u"new"_s);
    watch(source);
    ASSERT_TRUE(QDir().rmdir(path));
    putFile(path, "old");
    watch(source);
    EXPECT_THAT(delivered, ElementsAre(u"new"_s, u"new"_s));
    source.pasteText(u"newer"_s);
    putFile(path, "newest");
    watch(source);
    EXPECT_THAT(delivered, ElementsAre(u"new"_s, u"new"_s, u"newer"_s, u"newest"_s));
}

TEST_F(ClipboardSourceTest, LetsTheCallbackStopTheWatching) {
    QString last;
    source.startWatching([this, &last, text = QString()](const QString& delivery) mutable {
        text = delivery;
        if (text == "abc"_L1) source.stopWatching();
        last = text;
    });
    source.pasteText(u"abc"_s);
    source.pasteText(u"def"_s);
    EXPECT_EQ(last, u"abc"_s);
}

class ClipboardSourceReplacedFile : public ClipboardSourceTest,
                                    public ::testing::WithParamInterface<NotAFile> {};

TEST_P(ClipboardSourceReplacedFile, IsNoText) {
    source.pasteText(u"abc"_s);
    placeNotAFile(GetParam(), path);
    watch(source);
    EXPECT_THAT(delivered, ElementsAre(u"PLACEHOLDER"_s));
    EXPECT_EQ(source.pasteText(u"def"_s), u"def"_s);
    EXPECT_THAT(delivered, ElementsAre(u"PLACEHOLDER"_s, u"def"_s));
}

INSTANTIATE_TEST_SUITE_P(By, ClipboardSourceReplacedFile, ::testing::ValuesIn(allNotAFile),
                         byValue);

} // namespace
} // namespace tessaline

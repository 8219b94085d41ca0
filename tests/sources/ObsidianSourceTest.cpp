#include "sources/ObsidianSource.h"

#include "settings/SupportFolder.h"
#include "support/CaseName.h"
#include "support/FakeMainQueue.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeTimerMaker.h"
#include "support/NotAFile.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;

namespace tessaline {
namespace {

const auto waitingText =
    u"Waiting for content from Obsidian...\n\nUse 'Send to Tessaline' command in Obsidian."_s;

class ObsidianSourceTest : public ::testing::Test {
protected:
    ContentSource::ContentCallback appendTo(std::vector<QString>& texts) {
        return [&texts](const QString& text) { texts.push_back(text); };
    }

    void finishTasks() {
        runner.runAll();
        queue.runAll();
    }

    /// Starts watching and completes the initial load.
    void start() {
        source->startWatching(appendTo(delivered));
        finishTasks();
    }

    /// Lets one second pass and completes the check.
    void poll() {
        timers.advance(1.0);
        finishTasks();
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"tessaline-content.md"_s);
    FakeMainQueue queue;
    FakeTaskRunner runner;
    FakeTimerMaker timers;
    std::vector<QString> delivered;
    std::unique_ptr<ObsidianSource> source =
        std::make_unique<ObsidianSource>(queue, runner, timers, path);
};

TEST_F(ObsidianSourceTest, ReadsAFileInTheSupportFolder) {
    EXPECT_EQ(ObsidianSource::notchFilePath(),
              homeFolderPath() + "/Library/Application Support/Tessaline/tessaline-content.md"_L1);
}

TEST_F(ObsidianSourceTest, DeliversThePlaceholderOnceWhileThereIsNoFile) {
    start();
    poll();
    poll();
    EXPECT_THAT(delivered, ElementsAre(waitingText));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ObsidianSourceTest, DeliversTheTextAtTheStartOnTheMainQueue) {
    putFile(path, "A");
    source->startWatching(appendTo(delivered));
    EXPECT_THAT(delivered, ElementsAre());
    runner.runAll();
    EXPECT_THAT(delivered, ElementsAre());
    queue.runAll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
}

TEST_F(ObsidianSourceTest, DeliversAnEmptyFileAsAnEmptyText) {
    putFile(path, "");
    start();
    poll();
    EXPECT_THAT(delivered, ElementsAre(u""_s));
}

TEST_F(ObsidianSourceTest, DeliversEachNewTextOnce) {
    start();
    putFile(path, "A");
    poll();
    putFile(path, "A");
    poll();
    putFile(path, "B");
    poll();
    poll();
    EXPECT_THAT(delivered, ElementsAre(waitingText, u"A"_s, u"B"_s));
}

TEST_F(ObsidianSourceTest, DeliversTheWholeTextWhenOneCharacterChanges) {
    putFile(path, "one two three");
    start();
    putFile(path, "one two Three");
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"one two three"_s, u"one two Three"_s));
}

TEST_F(ObsidianSourceTest, ChecksEverySecond) {
    putFile(path, "A");
    start();
    putFile(path, "B");
    timers.advance(0.99);
    EXPECT_EQ(runner.pending(), 0U);
    timers.advance(0.01);
    EXPECT_EQ(runner.pending(), 1U);
    EXPECT_THAT(timers.liveIntervals(), ElementsAre(1.0));
}

TEST_F(ObsidianSourceTest, KeepsTheLastTextWhenTheFileIsDeleted) {
    putFile(path, "B");
    start();
    ASSERT_TRUE(QFile::remove(path));
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"B"_s));
}

TEST_F(ObsidianSourceTest, DoesNotDeliverAFileThatEqualsThePlaceholder) {
    start();
    putFile(path, waitingText.toUtf8());
    poll();
    EXPECT_THAT(delivered, ElementsAre(waitingText));
}

TEST_F(ObsidianSourceTest, DropsAByteOrderMark) {
    putFile(path, "\xEF\xBB\xBF# A");
    start();
    EXPECT_THAT(delivered, ElementsAre(u"# A"_s));
}

TEST_F(ObsidianSourceTest, TreatsInvalidUtf8AsAMissingFile) {
    putFile(path, "\xFF");
    start();
    putFile(path, "B");
    poll();
    putFile(path, "C\xFF");
    poll();
    EXPECT_THAT(delivered, ElementsAre(waitingText, u"B"_s));
}

TEST_F(ObsidianSourceTest, SaysNothingAboutAFileThatCannotBeRead) {
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    start();
    putFile(path, "\xFF");
    poll();
    placeNotAFile(NotAFile::folder, path);
    poll();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

class ObsidianSourceReplacedFile : public ObsidianSourceTest,
                                   public ::testing::WithParamInterface<NotAFile> {};

TEST_P(ObsidianSourceReplacedFile, IsAMissingFileAtTheStart) {
    placeNotAFile(GetParam(), path);
    start();
    poll();
    EXPECT_THAT(delivered, ElementsAre(waitingText));
}

TEST_P(ObsidianSourceReplacedFile, LeavesTheLastTextInPlace) {
    putFile(path, "B");
    start();
    placeNotAFile(GetParam(), path);
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"B"_s));
}

INSTANTIATE_TEST_SUITE_P(By, ObsidianSourceReplacedFile, ::testing::ValuesIn(allNotAFile), byValue);

TEST_F(ObsidianSourceTest, StopsCheckingWhenStopped) {
    putFile(path, "A");
    start();
    source->stopWatching();
    EXPECT_THAT(timers.liveIntervals(), ElementsAre());
    putFile(path, "B");
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
}

TEST_F(ObsidianSourceTest, DeliversAnUnchangedTextAgainAfterARestart) {
    putFile(path, "A");
    start();
    source->stopWatching();
    start();
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s, u"A"_s));
}

TEST_F(ObsidianSourceTest, RestartsCleanlyWithoutAStop) {
    putFile(path, "A");
    start();
    std::vector<QString> second;
    source->startWatching(appendTo(second));
    finishTasks();
    EXPECT_THAT(timers.liveIntervals(), ElementsAre(1.0));
    putFile(path, "B");
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
    EXPECT_THAT(second, ElementsAre(u"A"_s, u"B"_s));
}

TEST_F(ObsidianSourceTest, DeliversNothingWhenStoppedBeforeTheInitialLoad) {
    putFile(path, "A");
    source->startWatching(appendTo(delivered));
    source->stopWatching();
    finishTasks();
    EXPECT_THAT(delivered, ElementsAre());
}

TEST_F(ObsidianSourceTest, DeliversNothingWhenStoppedAfterTheInitialLoadWasRead) {
    putFile(path, "A");
    source->startWatching(appendTo(delivered));
    runner.runAll();
    source->stopWatching();
    finishTasks();
    EXPECT_THAT(delivered, ElementsAre());
}

TEST_F(ObsidianSourceTest, ReadsNothingForAWatchThatWasStoppedBeforeTheInitialLoad) {
    putFile(path, "A");
    source->startWatching(appendTo(delivered));
    source->stopWatching();
    runner.runAll();
    source->startWatching(appendTo(delivered));
    queue.runAll();
    EXPECT_THAT(delivered, ElementsAre());
    finishTasks();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
}

TEST_F(ObsidianSourceTest, DeliversTheInitialTextToWhoeverWatchesWhenItArrives) {
    putFile(path, "A");
    source->startWatching(appendTo(delivered));
    runner.runAll();
    std::vector<QString> second;
    source->startWatching(appendTo(second));
    queue.runAll();
    EXPECT_THAT(delivered, ElementsAre());
    EXPECT_THAT(second, ElementsAre(u"A"_s));
}

TEST_F(ObsidianSourceTest, FinishesACheckWithTheCallbackOfItsTick) {
    putFile(path, "A");
    start();
    putFile(path, "B");
    timers.advance(1.0);
    std::vector<QString> second;
    source->startWatching(appendTo(second));
    finishTasks();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s, u"B"_s));
    EXPECT_THAT(second, ElementsAre(u"B"_s));
}

TEST_F(ObsidianSourceTest, FinishesACheckAlsoWhenItIsStoppedMeanwhile) {
    putFile(path, "A");
    start();
    putFile(path, "B");
    timers.advance(1.0);
    source->stopWatching();
    finishTasks();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s, u"B"_s));
}

TEST_F(ObsidianSourceTest, ComparesWithTheNewestTextAfterAnOverlappingRestart) {
    putFile(path, "A");
    start();
    putFile(path, "B");
    timers.advance(1.0);
    runner.runAll();
    putFile(path, "C");
    start();
    poll();
    putFile(path, "B");
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s, u"B"_s, u"C"_s, u"B"_s));
}

TEST_F(ObsidianSourceTest, HasOneReadInFlightWhenReadsAreSlowerThanThePoll) {
    putFile(path, "A");
    source->startWatching(appendTo(delivered));
    timers.advance(5.0);
    EXPECT_EQ(runner.pending(), 1U);
    finishTasks();
    timers.advance(5.0);
    EXPECT_EQ(runner.pending(), 1U);
    runner.runAll();
    timers.advance(5.0);
    EXPECT_EQ(runner.pending(), 0U);
    queue.runAll();
    timers.advance(1.0);
    EXPECT_EQ(runner.pending(), 1U);
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
}

TEST_F(ObsidianSourceTest, DoesNothingAnyMoreOnceItIsGone) {
    putFile(path, "A");
    source->startWatching(appendTo(delivered));
    source.reset();
    poll();
    EXPECT_THAT(delivered, ElementsAre());
}

TEST_F(ObsidianSourceTest, DeliversNoTextThatWasReadBeforeItWent) {
    putFile(path, "A");
    start();
    putFile(path, "B");
    timers.advance(1.0);
    runner.runAll();
    source.reset();
    queue.runAll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
}

TEST_F(ObsidianSourceTest, LetsTheCallbackDestroyItAtTheStart) {
    putFile(path, "A");
    source->startWatching([this, texts = &delivered](const QString& text) {
        source.reset();
        texts->push_back(text);
    });
    finishTasks();
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
}

TEST_F(ObsidianSourceTest, LetsTheCallbackDestroyItAtACheck) {
    source->startWatching([this, texts = &delivered](const QString& text) {
        if (text == "A"_L1) source.reset();
        texts->push_back(text);
    });
    finishTasks();
    putFile(path, "A");
    poll();
    poll();
    EXPECT_THAT(delivered, ElementsAre(waitingText, u"A"_s));
}

} // namespace
} // namespace tessaline

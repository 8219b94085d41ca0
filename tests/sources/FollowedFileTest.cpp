#include "sources/FollowedFile.h"

#include "support/FakeMainQueue.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeTimerMaker.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace tessaline {
namespace {

class FollowedFileTest : public ::testing::Test {
protected:
    void follow(const QString& known) {
        file =
            std::make_unique<FollowedFile>(path, known, queue, runner, timers,
                                           [this](const QString& text) { told.push_back(text); });
    }

    void poll() {
        timers.advance(0.5);
        runner.runAll();
        queue.runAll();
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"talk.md"_s);
    FakeMainQueue queue;
    FakeTaskRunner runner;
    FakeTimerMaker timers;
    std::vector<QString> told;
    std::unique_ptr<FollowedFile> file;
};

TEST_F(FollowedFileTest, SaysNothingWhileTheTextIsTheKnownOne) {
    putFile(path, "one");
    follow(u"one"_s);
    poll();
    poll();
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(FollowedFileTest, TellsEachNewTextOnce) {
    putFile(path, "one");
    follow(u"one"_s);
    putFile(path, "two");
    poll();
    poll();
    putFile(path, "ten"); // as long, and within one tick of a coarse clock
    poll();
    EXPECT_THAT(told, ElementsAre(u"two"_s, u"ten"_s));
}

TEST_F(FollowedFileTest, NoticesWhatChangedBeforeItsFirstLook) {
    putFile(path, "newer than what was shown");
    follow(u"shown"_s);
    poll();
    EXPECT_THAT(told, ElementsAre(u"newer than what was shown"_s));
}

TEST_F(FollowedFileTest, FollowsAFileThatIsReplacedByAnother) {
    putFile(path, "one");
    follow(u"one"_s);
    poll();
    const QString other = folder.filePath(u"talk.md.tmp"_s);
    putFile(other, "two");
    ASSERT_TRUE(QFile::remove(path));
    poll();
    ASSERT_TRUE(QFile::rename(other, path));
    poll();
    EXPECT_THAT(told, ElementsAre(u"two"_s));
}

TEST_F(FollowedFileTest, KeepsTheLastTextWhileTheFileCannotBeRead) {
    putFile(path, "one");
    follow(u"one"_s);
    putFile(path, "\xff\xfe broken");
    poll();
    ASSERT_TRUE(QFile::remove(path));
    poll();
    EXPECT_THAT(told, IsEmpty());
    putFile(path, "two");
    poll();
    EXPECT_THAT(told, ElementsAre(u"two"_s));
}

TEST_F(FollowedFileTest, StartsNoSecondReadWhileOneIsUnderWay) {
    putFile(path, "one");
    follow(u"one"_s);
    timers.advance(0.5);
    timers.advance(5.0);
    EXPECT_EQ(runner.pending(), 1U);
}

TEST_F(FollowedFileTest, TellsNothingOnceItIsGone) {
    putFile(path, "two");
    follow(u"one"_s);
    timers.advance(0.5);
    runner.runAll();
    file.reset();
    queue.runAll();
    EXPECT_THAT(told, IsEmpty());
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
}

TEST_F(FollowedFileTest, MayBeEndedByItsOwnHandler) {
    putFile(path, "two");
    file = std::make_unique<FollowedFile>(path, u"one"_s, queue, runner, timers,
                                          [this](const QString& text) {
                                              file.reset();
                                              told.push_back(text);
                                          });
    poll();
    EXPECT_THAT(told, ElementsAre(u"two"_s));
}

} // namespace
} // namespace tessaline

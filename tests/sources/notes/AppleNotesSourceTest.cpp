#include "sources/notes/AppleNotesSource.h"

#include "support/FakeMainQueue.h"
#include "support/FakeProcessRunner.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeTimerMaker.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace tessaline {
namespace {

const auto noNoteText = u"Apple Notes: No note selected.\n\nSelect a note in Settings."_s;

class AppleNotesSourceTest : public ::testing::Test {
protected:
    ContentSource::ContentCallback appendTo(std::vector<QString>& texts) {
        return [&texts](const QString& text) { texts.push_back(text); };
    }

    void finishTasks() {
        tasks.runAll();
        queue.runAll();
    }

    void start() {
        source->startWatching(appendTo(delivered));
        finishTasks();
    }

    void poll() {
        timers.advance(3.0);
        finishTasks();
    }

    void setNote(const QString& html) { processes.result = {html, {}, 0}; }
    void setFailure(const QString& error) { processes.result = {{}, error, 1}; }

    FakeMainQueue queue;
    FakeTaskRunner tasks;
    FakeTimerMaker timers;
    FakeProcessRunner processes;
    std::vector<QString> delivered;
    std::unique_ptr<AppleNotesSource> source =
        std::make_unique<AppleNotesSource>(queue, tasks, timers, processes);
};

TEST_F(AppleNotesSourceTest, DeliversTheNoteAtTheStartOnTheMainQueue) {
    setNote(u"<h1>A</h1>"_s);
    source->startWatching(appendTo(delivered));
    tasks.runAll();
    EXPECT_THAT(delivered, IsEmpty());
    queue.runAll();
    EXPECT_THAT(delivered, ElementsAre(u"# A"_s));
}

TEST_F(AppleNotesSourceTest, ChecksEveryThreeSeconds) {
    start();
    timers.advance(2.99);
    EXPECT_EQ(tasks.pending(), 0U);
    timers.advance(0.01);
    EXPECT_EQ(tasks.pending(), 1U);
    EXPECT_THAT(timers.liveIntervals(), ElementsAre(3.0));
}

TEST_F(AppleNotesSourceTest, DeliversEachNewTextOnce) {
    setNote(u"A"_s);
    start();
    poll();
    setNote(u"<b>B</b>"_s);
    poll();
    poll();
    setNote(u"A"_s);
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s, u"**B**"_s, u"A"_s));
}

TEST_F(AppleNotesSourceTest, DeliversNothingForANoteWithoutText) {
    setNote(u"<div></div>"_s);
    start();
    EXPECT_THAT(delivered, IsEmpty());
}

TEST_F(AppleNotesSourceTest, ReadsTheChosenNoteFromTheNextCheckOn) {
    start();
    source->configuration = AppleNotesConfiguration{u"the-id"_s, u"name"_s};
    poll();
    source->configuration.reset();
    poll();
    ASSERT_EQ(processes.calls.size(), 3U);
    EXPECT_FALSE(processes.calls[0].arguments[1].contains(u"whose id is"_s));
    EXPECT_TRUE(processes.calls[1].arguments[1].contains(u"whose id is \"the-id\""_s));
    EXPECT_FALSE(processes.calls[2].arguments[1].contains(u"whose id is"_s));
}

TEST_F(AppleNotesSourceTest, ShowsThatThereIsNoNote) {
    start();
    EXPECT_THAT(delivered, ElementsAre(noNoteText));
}

TEST_F(AppleNotesSourceTest, ShowsThatThePermissionIsMissing) {
    setFailure(u"execution error: Not authorised to send Apple events to Notes. (-1743)"_s);
    start();
    EXPECT_THAT(delivered,
                ElementsAre(u"Apple Notes: Automation permission required.\n\nGrant permission in "
                            "System Settings > Privacy & Security > Automation.\n\nLook for "
                            "Tessaline and enable Notes."_s));
}

TEST_F(AppleNotesSourceTest, ShowsWhyAScriptFailed) {
    setFailure(u""_s);
    start();
    setFailure(u"Can’t get note."_s);
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"Apple Notes: Script error: Script failed"_s,
                                       u"Apple Notes: Script error: Can’t get note."_s));
}

TEST_F(AppleNotesSourceTest, ShowsALastingFailureOnce) {
    start();
    poll();
    poll();
    setNote(u"A"_s);
    poll();
    setNote(u""_s);
    poll();
    EXPECT_THAT(delivered, ElementsAre(noNoteText, u"A"_s, noNoteText));
}

TEST_F(AppleNotesSourceTest, StopsCheckingWhenStopped) {
    setNote(u"A"_s);
    start();
    source->stopWatching();
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
    setNote(u"B"_s);
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
}

TEST_F(AppleNotesSourceTest, DeliversAnUnchangedTextAgainAfterARestart) {
    setNote(u"A"_s);
    start();
    start();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s, u"A"_s));
    EXPECT_THAT(timers.liveIntervals(), ElementsAre(3.0));
}

TEST_F(AppleNotesSourceTest, DropsATextThatArrivesAfterTheStop) {
    setNote(u"A"_s);
    source->startWatching(appendTo(delivered));
    tasks.runAll();
    source->stopWatching();
    queue.runAll();
    EXPECT_THAT(delivered, IsEmpty());
}

TEST_F(AppleNotesSourceTest, DeliversALateTextToWhoeverWatchesWhenItArrives) {
    setNote(u"A"_s);
    source->startWatching(appendTo(delivered));
    tasks.runAll();
    std::vector<QString> second;
    source->startWatching(appendTo(second));
    finishTasks();
    EXPECT_THAT(delivered, IsEmpty());
    EXPECT_THAT(second, ElementsAre(u"A"_s));
}

TEST_F(AppleNotesSourceTest, DoesNotPileUpSlowChecks) {
    source->startWatching(appendTo(delivered));
    timers.advance(9.0);
    EXPECT_EQ(tasks.pending(), 1U);
    finishTasks();
    timers.advance(3.0);
    EXPECT_EQ(tasks.pending(), 1U);
}

TEST_F(AppleNotesSourceTest, RunsNoScriptOnceItIsGone) {
    source->startWatching(appendTo(delivered));
    source.reset();
    finishTasks();
    EXPECT_THAT(processes.calls, IsEmpty());
}

TEST_F(AppleNotesSourceTest, DeliversNothingOnceItIsGone) {
    setNote(u"A"_s);
    source->startWatching(appendTo(delivered));
    tasks.runAll();
    source.reset();
    queue.runAll();
    EXPECT_THAT(delivered, IsEmpty());
}

TEST_F(AppleNotesSourceTest, MayBeStoppedOrDestroyedByItsCallback) {
    setNote(u"A"_s);
    source->startWatching([this](const QString& text) {
        delivered.push_back(text);
        source->stopWatching();
        source.reset();
    });
    finishTasks();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
}

} // namespace
} // namespace tessaline

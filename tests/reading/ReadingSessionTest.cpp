#include "reading/ReadingSession.h"

#include "RecordingView.h"

#include "reading/MarkdownScript.h"
#include "reading/PositionSource.h"
#include "settings/PersistedSettings.h"
#include "settings/ReadingOptions.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class RecordingSource final : public PositionSource {
public:
    explicit RecordingSource(QStringList& log) : calls(log) {}

    void start() override { calls += u"start"_s; }
    void stop() override { calls += u"stop"_s; }
    void setPace(const Pace& pace) override { calls += u"pace %1"_s.arg(pace.speed); }

private:
    QStringList& calls;
};

class ReadingSessionTest : public testing::Test {
protected:
    ReadingSessionTest() { session.addView(first); }

    void show(const QString& markdown, qsizetype words = 0) {
        session.setContent({std::make_shared<const Script>(markdownScript(markdown, 16)), words});
    }

    void expectPlace(std::size_t paragraph, double fraction) {
        EXPECT_EQ(session.place().paragraph, paragraph);
        EXPECT_EQ(session.place().fraction, fraction);
    }

    PersistedSettings settings;
    ReadingOptions options;
    RecordingView first;
    RecordingView second;
    ReadingSession session{settings, options};
    QStringList calls;
};

TEST_F(ReadingSessionTest, HoldsTheTextAndItsWords) {
    show(u"# One\ntwo"_s, 2);
    EXPECT_EQ(session.script()->text(), u"One\ntwo"_s);
    EXPECT_EQ(session.words(), 2);
}

TEST_F(ReadingSessionTest, LeavesATextThatSomebodyStillReadsAsItIs) {
    show(u"old"_s);
    const auto old = session.script();
    show(u"new"_s);
    EXPECT_EQ(old->text(), u"old"_s);
}

TEST_F(ReadingSessionTest, MovesByThePointsAndToTheLinesOfItsFirstView) {
    session.addView(second);
    session.moveBy(2.5);
    session.moveTo(40);
    EXPECT_EQ(first.steps, std::vector<double>{2.5});
    EXPECT_EQ(first.offsets, std::vector<qsizetype>{40});
    EXPECT_TRUE(second.steps.empty());
    EXPECT_TRUE(second.offsets.empty());
}

TEST_F(ReadingSessionTest, HasOtherViewsFollowTheFirst) {
    session.addView(second);
    second.followed.clear();
    show(u"one\ntwo\nthree"_s);
    session.reached(first, {2, 0.5});
    expectPlace(2, 0.5);
    ASSERT_EQ(second.followed.size(), 1U);
    EXPECT_EQ(second.followed[0].paragraph, 2U);
    session.reached(second, {1, 0.0});
    expectPlace(2, 0.5);
}

TEST_F(ReadingSessionTest, ShowsANewViewTheReadersPlace) {
    show(u"one\ntwo\nthree"_s);
    session.reached(first, {1, 0.25});
    session.addView(second);
    ASSERT_EQ(second.followed.size(), 1U);
    EXPECT_EQ(second.followed[0].paragraph, 1U);
    EXPECT_EQ(second.followed[0].fraction, 0.25);
}

TEST_F(ReadingSessionTest, HasAPlaceInItsTextAlsoWhileNobodyShowsIt) {
    show(u"one\ntwo\nthree"_s);
    session.reached(first, {2, 0.25});
    session.removeView(first);
    show(u"another"_s);
    expectPlace(0, 0.25);
    session.reached(first, {7, 0.0});
    expectPlace(0, 0.25);
}

TEST_F(ReadingSessionTest, GoesOnWithTheSecondViewOnceTheFirstIsGone) {
    session.addView(second);
    session.removeView(first);
    session.moveBy(1);
    EXPECT_TRUE(first.steps.empty());
    EXPECT_EQ(second.steps, std::vector<double>{1});
    session.removeView(second);
    session.moveBy(1);
    session.moveTo(0);
    EXPECT_EQ(second.steps.size(), 1U);
}

TEST_F(ReadingSessionTest, KeepsThePlaceInWhatStaysBeforeTheReadersEyes) {
    show(u"one\ntwo\nthree"_s);
    session.reached(first, {2, 0.5});
    first.placesKept.clear();
    show(u"zero\none\ntwo\nthree"_s);
    expectPlace(3, 0.5);
    show(u"zero\none\ntwo\nthree\nfour"_s);
    expectPlace(3, 0.5);
    show(u"zero\none\ntwo\nthird\nfour"_s); // the same lines, one of them edited
    expectPlace(3, 0.5);
    EXPECT_EQ(first.placesKept, (std::vector<bool>{true, true, true}));
}

TEST_F(ReadingSessionTest, LeavesItToTheViewWhenWhatTheReaderSawIsGone) {
    show(u"one\ntwo\nthree\nfour"_s);
    session.reached(first, {2, 0.5});
    show(u"one\nfour"_s);
    EXPECT_FALSE(first.placesKept.back());
}

TEST_F(ReadingSessionTest, TellsTheTimeOfTheWholeText) {
    settings.scrollRate = ScrollRate::fast;
    first.wholeDistance = 1000;
    EXPECT_EQ(session.readingSeconds(), 0);
    session.updateReadingTime();
    EXPECT_EQ(session.readingSeconds(), 65);
}

TEST_F(ReadingSessionTest, StartsItsSourceWhenTheSettingsSaySo) {
    settings.scrollSpeed = 2;
    session.setSource(std::make_unique<RecordingSource>(calls));
    EXPECT_EQ(calls, (QStringList{u"pace 2"_s}));
    settings.autoScrollEnabled = true;
    calls.clear();
    session.setSource(std::make_unique<RecordingSource>(calls));
    EXPECT_EQ(calls, (QStringList{u"pace 2"_s, u"start"_s}));
}

TEST_F(ReadingSessionTest, DrivesTheOneSourceThatIsActive) {
    session.start(); // without one
    QStringList callsOfTheOld;
    session.setSource(std::make_unique<RecordingSource>(callsOfTheOld));
    session.setSource(std::make_unique<RecordingSource>(calls));
    callsOfTheOld.clear();
    calls.clear();
    session.start();
    settings.scrollSpeed = 3;
    session.updatePace();
    session.stop();
    EXPECT_EQ(calls, (QStringList{u"start"_s, u"pace 3"_s, u"stop"_s}));
    EXPECT_TRUE(callsOfTheOld.isEmpty());
}

} // namespace
} // namespace tessaline

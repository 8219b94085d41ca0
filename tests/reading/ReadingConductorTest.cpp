#include "reading/ReadingConductor.h"

#include "pace/LineView.h"

#include "reading/MarkdownScript.h"
#include "reading/PrompterStatus.h"
#include "reading/ReadingSession.h"
#include "settings/AppSettings.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeMainQueue.h"
#include "support/TestPlatform.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A text of forty lines of four words, moved as settings and options say.
class ReadingConductorTest : public testing::Test {
protected:
    ReadingConductorTest() {
        fakes.displayLinks.clockFrequency = 60;
        QString text = u"one two three four\n"_s.repeated(40);
        text.chop(1);
        session->setContent({std::make_shared<const Script>(markdownScript(text, 16))});
    }

    void setSpeed(double speed) {
        settings.setScrollSpeed(speed);
        session->updatePace();
    }

    void play() {
        settings.setAutoScrollEnabled(true);
        session->start();
    }

    void run(double seconds) {
        for (int frames = int(seconds * 60); frames > 0; --frames) {
            fakes.displayLinks.refresh(++hostTime);
            fakes.mainQueue.runAll();
        }
    }

    PrompterStatus status() const {
        PrompterStatus status;
        session->tellProgress(status);
        return status;
    }

    QTemporaryDir folder;
    AppSettings settings{folder.filePath(u"config.json"_s)};
    ReadingSettings options{folder.filePath(u"reading.json"_s)};
    TestPlatform fakes;
    std::uint64_t hostTime = 0;
    Clocks::TimePoint now;
    const std::shared_ptr<ReadingSession> session = std::make_shared<ReadingSession>(
        settings.values(), options.values(), Clocks{.steady = [this] { return now; }});
    LineView view{*session, 50, 20};
    ReadingConductor conductor{settings, options, session, fakes.platform};
};

TEST_F(ReadingConductorTest, MovesTheTextAtTheSpeedOfTheSettings) {
    setSpeed(5);
    play();
    run(5);
    EXPECT_NEAR(view.position(), 5 * 12.8, 0.3);
}

TEST_F(ReadingConductorTest, GoesOverToAnotherPaceWhileTheTextMoves) {
    play();
    run(1);
    options.change([](auto& values) {
        values.pace = PaceMode::words;
        values.wordsPerMinute = 240;
    });
    const double before = view.wordsRead();
    run(10);
    EXPECT_NEAR(view.wordsRead() - before, 40, 1);
    options.change([](auto& values) { values.wordsPerMinute = 120; });
    run(2);
    const double slower = view.wordsRead();
    run(10);
    EXPECT_NEAR(view.wordsRead() - slower, 20, 1);
    options.change([](auto& values) { values.pace = PaceMode::speed; });
    const double position = view.position();
    run(5);
    EXPECT_NEAR(view.position() - position, 5 * 5.12, 0.3);
}

TEST_F(ReadingConductorTest, CountsOtherMinutesFromTheSameBeginning) {
    options.change([](auto& values) {
        values.pace = PaceMode::finish;
        values.finishMinutes = 12;
    });
    play();
    now += std::chrono::minutes(6);
    options.change([](auto& values) { values.finishMinutes = 11.5; });
    EXPECT_NEAR(*status().secondsLeft, 5.5 * 60, 1e-6);
}

TEST_F(ReadingConductorTest, LeavesTheTextAtItsEndUnlessItIsToldOtherwise) {
    setSpeed(5);
    play();
    run(100);
    EXPECT_EQ(view.position(), view.distance());
    EXPECT_TRUE(settings.autoScrollEnabled());
}

TEST_F(ReadingConductorTest, SwitchesAutoScrollOffAtTheEnd) {
    options.change([](auto& values) { values.atEnd = ScriptEnd::stop; });
    for (const PaceMode pace : {PaceMode::speed, PaceMode::words}) {
        options.change([pace](auto& values) { values.pace = pace; });
        setSpeed(5);
        view.scrollTo(view.distance() - 30);
        play();
        run(20);
        EXPECT_EQ(view.position(), view.distance());
        EXPECT_FALSE(settings.autoScrollEnabled());
    }
}

TEST_F(ReadingConductorTest, GoesRound) {
    options.change([](auto& values) { values.atEnd = ScriptEnd::goRound; });
    for (const PaceMode pace : {PaceMode::speed, PaceMode::words}) {
        options.change([pace](auto& values) { values.pace = pace; });
        setSpeed(5);
        view.scrollTo(view.distance() - 20);
        play();
        run(5);
        EXPECT_GT(view.position(), 1);
        EXPECT_LT(view.position(), 100);
        EXPECT_TRUE(settings.autoScrollEnabled());
    }
}

TEST_F(ReadingConductorTest, KeepsThePaceOnEveryRound) {
    options.change([](auto& values) {
        values.pace = PaceMode::words;
        values.atEnd = ScriptEnd::goRound;
    });
    view.scrollTo(view.distance() - 20);
    play();
    run(5);
    const double words = view.wordsRead();
    run(20);
    EXPECT_NEAR(view.wordsRead() - words, 50, 1);
}

TEST_F(ReadingConductorTest, TellsHowFastTheWordsPassAtASpeed) {
    setSpeed(5);
    EXPECT_EQ(status().wordsPerMinute, 0);
    play();
    run(20);
    // Lines of four words and twenty points, at 12.8 points a second.
    EXPECT_NEAR(status().wordsPerMinute, 12.8 / 20 * 4 * 60, 5);
    EXPECT_NEAR(status().wordsRead, view.wordsRead(), 1e-9);
    EXPECT_NEAR(*status().secondsLeft, (view.distance() - view.position()) / 12.8, 1e-6);
}

TEST_F(ReadingConductorTest, TellsThatNothingEndsAtSpeedZero) {
    setSpeed(0);
    EXPECT_FALSE(status().secondsLeft);
    view.scrollTo(view.distance());
    EXPECT_EQ(status().secondsLeft, 0);
}

TEST_F(ReadingConductorTest, TellsHowLongTheRestTakesAtAPromisedPace) {
    options.change([](auto& values) {
        values.pace = PaceMode::words;
        values.wordsPerMinute = 60;
    });
    // From the middle of the first line to the middle of the last.
    EXPECT_NEAR(*status().secondsLeft, 156, 1e-6);
    play();
    run(30);
    EXPECT_NEAR(*status().secondsLeft, 126, 1);
    EXPECT_NEAR(status().wordsPerMinute, 60, 1e-6);
}

} // namespace
} // namespace tessaline

#include "reading/pace/PacedScroll.h"

#include "PacedReading.h"
#include "reading/PrompterStatus.h"
#include "support/texts/RandomTalk.h"

#include "reading/PrompterStatus.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

using Frame = PacedReading::Frame;

constexpr double softSeconds = 0.3;
constexpr double greatestChange = 1.02;

/// The most that the speed changed from one frame to the next, as a factor, once the soft start was
/// over; infinite where the text stood or went back.
double greatestSpeedChange(const std::vector<Frame>& frames) {
    double greatest = 1.0;
    for (std::size_t i = 2; i + 1 < frames.size(); ++i) {
        if (frames[i - 2].seconds - frames.front().seconds < softSeconds) continue;
        const double before = frames[i - 1].position - frames[i - 2].position;
        const double after = frames[i].position - frames[i - 1].position;
        if (before <= 0.0 || after <= 0.0) return std::numeric_limits<double>::infinity();
        greatest = std::max({greatest, after / before, before / after});
    }
    return greatest;
}

/// By how many words the worst stretch of thirty seconds misses the promise.
double worstHalfMinute(const std::vector<Frame>& frames, double wordsPerMinute) {
    constexpr std::size_t length = 1800; // frames
    double worst = 0.0;
    for (std::size_t i = length; i < frames.size(); ++i) {
        if (frames[i].words >= frames.back().words) break; // what is left holds no words
        const double passed = frames[i].words - frames[i - length].words;
        worst = std::max(worst, std::abs(passed - wordsPerMinute / 2));
    }
    return worst;
}

/// So many words may be missing or too many in thirty seconds: three or five in a hundred. A line
/// that is wider than anybody's eyes, alone between two blank ones, cannot pass as slowly as its
/// words want and the blank space as quickly, as the speed changes by two in a hundred in a frame
/// at most: then half of its words may.
double tolerance(double wordsPerMinute, int charactersPerLine = 0) {
    constexpr int widestForEyes = 60;
    const double usual = std::max(3.0, 0.05 * wordsPerMinute / 2);
    return charactersPerLine <= widestForEyes ? usual : std::max(usual, charactersPerLine / 12.0);
}

QString prose(int words) {
    return u"word "_s.repeated(words);
}

class PacedScrollTest : public testing::Test {
protected:
    /// Words a minute that pass from one frame to another.
    static double pace(const Frame& from, const Frame& to) {
        return (to.words - from.words) / (to.seconds - from.seconds) * 60;
    }

    PacedReading reading;
};

TEST_F(PacedScrollTest, PassesSoManyWordsAMinute) {
    reading.show(prose(1000));
    reading.play();
    const auto frames = reading.runToEnd(600);
    EXPECT_TRUE(reading.atEnd());
    EXPECT_NEAR(pace(frames.front(), frames.back()), 150, 1.5);
    EXPECT_LT(worstHalfMinute(frames, 150), 1.0);
}

TEST_F(PacedScrollTest, PassesShortLinesQuickerThanLongOnes) {
    reading.show(prose(100) + "\n"_L1 + u"one two\n"_s.repeated(30));
    reading.play();
    const auto frames = reading.runToEnd(200);
    const auto speedAt = [&](double words) {
        const auto at = std::find_if(frames.begin(), frames.end(),
                                     [&](const Frame& frame) { return frame.words >= words; });
        return (at->position - std::prev(at)->position) * 60;
    };
    // Ten words a line and two, in lines of twenty points.
    EXPECT_NEAR(speedAt(50), 20 * 2.5 / 10, 0.5);
    EXPECT_NEAR(speedAt(130), 20 * 2.5 / 2, 2.5);
}

TEST_F(PacedScrollTest, CrossesBlankSpaceInTheTimeOfABreath) {
    reading.show(prose(200) + "\n\n"_L1 + prose(200));
    reading.play();
    const auto frames = reading.runToEnd(300);
    // Its place is found in the lines, the time is that in which the reader is in it.
    const auto& lines = reading.view.allLines();
    const auto blank = std::find_if(lines.begin(), lines.end(),
                                    [](const LineBox& line) { return line.paragraph == 1; });
    const double top = blank->top - lines.front().height / 2;
    const auto inside = std::count_if(frames.begin(), frames.end(), [&](const Frame& frame) {
        return frame.position >= top && frame.position < top + blank->height;
    });
    // A line of words takes four seconds. Slowing down and speeding up take their part.
    EXPECT_GT(double(inside) / 60, 0.3);
    EXPECT_LT(double(inside) / 60, 1.2);
}

TEST_F(PacedScrollTest, StartsAndStopsSoftly) {
    reading.show(prose(500));
    reading.play();
    const auto start = reading.run(1.0);
    const double full = start[59].position - start[58].position;
    EXPECT_LT(start[0].position, 0.1 * full);
    EXPECT_NEAR(start[9].position - start[8].position, full / 2, 0.15 * full);
    EXPECT_NEAR(start[19].position - start[18].position, full, 0.05 * full);

    reading.pause();
    const auto stop = reading.run(1.0);
    EXPECT_NEAR(stop[8].position - stop[7].position, full / 2, 0.15 * full);
    EXPECT_GT(stop[16].position, stop[15].position);
    EXPECT_EQ(stop[59].position, stop[20].position);
    EXPECT_TRUE(std::none_of(reading.links.living.begin(), reading.links.living.end(),
                             [](const FakeDisplayLink* link) { return link->isStarted(); }));
}

TEST_F(PacedScrollTest, WaitsAndPromisesNothingWhileItsSessionIsHeld) {
    reading.options.pace = PaceMode::finish;
    reading.options.finishMinutes = 1;
    reading.show(prose(150));
    reading.session->setHeld(true);
    reading.play();
    reading.session->updatePace();
    reading.run(30);
    EXPECT_EQ(reading.view.position(), 0);
    PrompterStatus status;
    reading.session->tellProgress(status);
    EXPECT_EQ(status.wordsPerMinute, 0);
    EXPECT_EQ(status.secondsElapsed, 0);
    EXPECT_DOUBLE_EQ(status.secondsLeft.value_or(0), 60);

    reading.session->setHeld(false);
    reading.run(59);
    EXPECT_FALSE(reading.atEnd());
    reading.run(2);
    EXPECT_TRUE(reading.atEnd());
}

TEST_F(PacedScrollTest, CountsNoTimeWhileItIsPaused) {
    reading.show(prose(500));
    reading.play();
    reading.run(5);
    reading.pause();
    reading.run(10);
    PrompterStatus status;
    reading.session->tellProgress(status);
    EXPECT_NEAR(status.secondsElapsed, 5, 0.1);
}

TEST_F(PacedScrollTest, GoesOnFromWhereAHandLeftTheReader) {
    reading.show(prose(2000));
    reading.play();
    reading.run(10);
    reading.view.scrollTo(800);
    const auto frames = reading.run(60);
    EXPECT_NEAR(frames.front().position, 800, 0.5);
    // Nothing is made up for: the promise begins anew.
    EXPECT_LT(worstHalfMinute(frames, 150), 0.5);
    reading.view.scrollTo(100);
    EXPECT_LT(worstHalfMinute(reading.run(60), 150), 0.5);
}

TEST_F(PacedScrollTest, KeepsThePaceAcrossAnotherFontAndWidth) {
    reading.show(prose(2000));
    reading.play();
    reading.run(20);
    reading.view.set(24, 33);
    auto frames = reading.run(60);
    EXPECT_LT(worstHalfMinute(frames, 150), tolerance(150));
    reading.view.set(120, 14);
    frames = reading.run(60);
    EXPECT_LT(worstHalfMinute(frames, 150), tolerance(150));
}

TEST_F(PacedScrollTest, KeepsThePaceWhenTheTextBeforeAndBehindChanges) {
    reading.show(prose(300) + "\n\n"_L1 + prose(1000));
    reading.play();
    reading.run(60);
    const double words = reading.view.wordsRead();
    reading.show(prose(200) + "\n\n"_L1 + prose(300) + "\n\n"_L1 + prose(1200));
    const auto frames = reading.run(60);
    EXPECT_LT(worstHalfMinute(frames, 150), tolerance(150));
    EXPECT_GT(frames.back().words, words);
}

TEST_F(PacedScrollTest, StepsToAnotherRateWithoutAJerk) {
    reading.show(prose(2000));
    reading.play();
    auto frames = reading.run(40);
    reading.options.wordsPerMinute = 300;
    reading.session->updatePace();
    const auto quicker = reading.run(60);
    EXPECT_NEAR(pace(quicker[900], quicker.back()), 300, 6);
    frames.insert(frames.end(), quicker.begin(), quicker.end());
    EXPECT_LE(greatestSpeedChange(frames), greatestChange + 1e-6);
}

TEST_F(PacedScrollTest, GoesOnWhereItWasAfterTheMachineStoodStill) {
    reading.show(prose(2000));
    reading.play();
    const auto before = reading.run(20);
    const auto after = reading.run(10, 0.1);
    EXPECT_LT(after.back().position - before.back().position, 3);
}

TEST_F(PacedScrollTest, StandsAtTheEndWithoutFramesUntilThereIsMore) {
    reading.show(prose(30));
    reading.play();
    reading.runToEnd(60);
    EXPECT_TRUE(reading.atEnd());
    reading.run(0.1);
    const auto isTicking = [&] {
        return std::any_of(reading.links.living.begin(), reading.links.living.end(),
                           [](const FakeDisplayLink* link) { return link->isStarted(); });
    };
    EXPECT_FALSE(isTicking());
    reading.view.scrollTo(0);
    EXPECT_TRUE(isTicking());
    EXPECT_GT(reading.run(2).back().position, 1);
}

TEST_F(PacedScrollTest, FallsBackToATimerWhereThereIsNoDisplayLink) {
    reading.links.available = false;
    reading.session->setSource(std::make_unique<PacedScroll>(
        *reading.session, reading.links, reading.timers, reading.queue, Clocks{}));
    reading.show(prose(500));
    reading.play();
    EXPECT_EQ(reading.timers.liveIntervals().size(), 1u);
    reading.timers.advance(1.0);
    EXPECT_GT(reading.view.position(), 0.0);
}

TEST_F(PacedScrollTest, MovesWhatHoldsNoWordAtAll) {
    reading.show(u"---\n\n[a long look]\n\n"_s.repeated(40));
    reading.play();
    const auto frames = reading.run(10);
    EXPECT_NEAR(frames.back().position, 200, 10);
    EXPECT_EQ(frames.back().words, 0);
}

TEST_F(PacedScrollTest, MovesOneEndlessLine) {
    reading.show(QString(100'000, u'x'));
    reading.play();
    const auto frames = reading.run(10);
    EXPECT_GT(frames.back().position, frames.front().position);
    EXPECT_TRUE(
        std::is_sorted(frames.begin(), frames.end(), [](const Frame& one, const Frame& other) {
            return one.position < other.position;
        }));
}

TEST_F(PacedScrollTest, ReachesTheEndInSoManyMinutes) {
    reading.options.pace = PaceMode::finish;
    reading.options.finishMinutes = 6;
    reading.show(randomTalk(1, 900));
    reading.play();
    const auto frames = reading.runToEnd(1000);
    EXPECT_NEAR(frames.back().seconds, 360, 3.6);
    EXPECT_LE(greatestSpeedChange(frames), greatestChange + 1e-6);
}

TEST_F(PacedScrollTest, ReachesTheEndInHalfAMinute) {
    reading.options.pace = PaceMode::finish;
    reading.options.finishMinutes = 0.5;
    reading.show("## A heading\n\n"_L1 + prose(40) + "\n\n- one\n- two\n\n"_L1 + prose(25) +
                 "\n\n---\n\n[and off]\n"_L1);
    reading.play();
    EXPECT_NEAR(reading.runToEnd(100).back().seconds, 30, 0.3);
}

TEST_F(PacedScrollTest, ReachesTheEndOnTimeWhateverHappensOnTheWay) {
    reading.options.pace = PaceMode::finish;
    reading.options.finishMinutes = 8;
    const QString talk = randomTalk(3, 1000);
    reading.show(talk);
    reading.play();
    reading.run(60);
    reading.pause();
    reading.run(45);
    reading.play();
    reading.run(20);
    reading.view.scrollTo(reading.view.position() + 300);
    reading.run(20);
    reading.view.scrollTo(reading.view.position() - 500);
    reading.run(30);
    reading.view.set(30, 30);
    reading.session->updatePace(); // as with every step of a slider
    reading.run(30);
    const auto paragraph = qsizetype(reading.session->place().paragraph);
    reading.show(talk + prose(100));
    reading.run(10);
    QStringList lines = (talk + prose(100)).split(u'\n');
    lines[paragraph] += " and some more words"_L1;
    reading.show(lines.join(u'\n'));
    EXPECT_NEAR(reading.runToEnd(1000).back().seconds, 480, 4.8);
}

TEST_F(PacedScrollTest, PromisesTheEndAnewToWhoGoesBackFromIt) {
    reading.options.pace = PaceMode::finish;
    reading.options.finishMinutes = 2;
    reading.show(prose(300));
    reading.play();
    reading.runToEnd(200);
    reading.run(100);
    PrompterStatus status;
    reading.session->tellProgress(status);
    EXPECT_NEAR(status.secondsElapsed, 120, 1.2);
    reading.view.scrollTo(0);
    const double begin = reading.now();
    EXPECT_NEAR(reading.session->secondsLeft().value_or(0), 120, 0.1);
    EXPECT_NEAR(reading.runToEnd(200).back().seconds - begin, 120, 1.2);
}

TEST_F(PacedScrollTest, ReachesTheEndAtATimeOfDay) {
    reading.options.pace = PaceMode::finish;
    reading.options.finishAt = TimeOfDay{12 * 60 + 5};
    reading.show(randomTalk(4, 700));
    reading.play();
    EXPECT_NEAR(reading.runToEnd(1000).back().seconds, 300, 3);
}

TEST_F(PacedScrollTest, IsNeverFasterThanAnybodySpeaks) {
    reading.options.pace = PaceMode::finish;
    reading.options.finishMinutes = 1;
    reading.show(prose(1000));
    reading.play();
    EXPECT_NEAR(reading.session->secondsLate(), 140, 2);
    const auto frames = reading.runToEnd(1000);
    EXPECT_NEAR(frames.back().seconds, 199, 2);
}

struct Setting {
    std::uint32_t seed;
    double wordsPerMinute;
    int charactersPerLine;
    double lineHeight;
};

void PrintTo(const Setting& setting, std::ostream* out) {
    *out << setting.seed << " at " << setting.wordsPerMinute << " words a minute, "
         << setting.charactersPerLine << " characters a line of " << setting.lineHeight;
}

class AnyScript : public testing::TestWithParam<Setting> {};

TEST_P(AnyScript, PassesSteadilyAtThePromisedPace) {
    const auto& [seed, wordsPerMinute, charactersPerLine, lineHeight] = GetParam();
    PacedReading reading;
    reading.options.wordsPerMinute = wordsPerMinute;
    reading.view.set(charactersPerLine, lineHeight);
    reading.show(randomTalk(seed, 1000));
    reading.play();
    const auto frames = reading.runToEnd(3000);
    ASSERT_TRUE(reading.atEnd());
    EXPECT_LE(greatestSpeedChange(frames), greatestChange + 1e-6);
    EXPECT_LE(worstHalfMinute(frames, wordsPerMinute),
              tolerance(wordsPerMinute, charactersPerLine));
    const double words = frames.back().words - frames.front().words;
    EXPECT_NEAR(frames.back().seconds, words / wordsPerMinute * 60,
                0.01 * words / wordsPerMinute * 60);
}

std::vector<Setting> settings() {
    // From 10 to 30 points, and columns of 340 to 760.
    constexpr std::array fonts{10.0, 12.0, 16.0, 20.0, 24.0, 30.0};
    constexpr std::array widths{340.0, 410.0, 560.0, 760.0};
    constexpr std::array rates{60.0, 100.0, 150.0, 200.0, 300.0};
    std::vector<Setting> all;
    for (std::uint32_t seed = 1; seed <= 60; ++seed) {
        const double font = fonts[seed % fonts.size()];
        const double width = widths[seed % widths.size()];
        all.push_back(
            {seed, rates[seed % rates.size()], int(width / (0.55 * font)), std::round(1.3 * font)});
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(Random, AnyScript, testing::ValuesIn(settings()));

} // namespace
} // namespace tessaline

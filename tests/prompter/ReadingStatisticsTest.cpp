#include "prompter/ReadingStatistics.h"

#include "appearance/SystemPalette.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Estimate {
    double remaining;
    ScrollRate rate;
    double seconds;
    QString text;
};

class ReadingTime : public testing::TestWithParam<Estimate> {};

TEST_P(ReadingTime, IsEstimatedFromTheRateInStepsOfFiveSeconds) {
    const double seconds =
        ReadingStatistics::remainingSeconds(GetParam().remaining, GetParam().rate);
    EXPECT_EQ(seconds, GetParam().seconds);
    EXPECT_EQ(ReadingStatistics::timeText(seconds), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Examples, ReadingTime,
                         testing::Values(Estimate{0, ScrollRate::medium, 0, u"5s"_s},
                                         Estimate{1000, ScrollRate::medium, 100, u"1m40s"_s},
                                         Estimate{1000, ScrollRate::fast, 65, u"1m5s"_s},
                                         Estimate{1000, ScrollRate::slow, 130, u"2m10s"_s},
                                         Estimate{1843, ScrollRate::medium, 180, u"3m"_s},
                                         Estimate{460, ScrollRate::medium, 45, u"45s"_s},
                                         Estimate{614.4, ScrollRate::medium, 60, u"1m"_s},
                                         Estimate{40000, ScrollRate::medium, 3905, u"65m5s"_s}));

TEST(ReadingTimeText, IsNeverBelowFiveSeconds) {
    EXPECT_EQ(ReadingStatistics::timeText(0), u"5s"_s);
    EXPECT_EQ(ReadingStatistics::timeText(5), u"5s"_s);
    EXPECT_EQ(ReadingStatistics::timeText(55), u"55s"_s);
    EXPECT_EQ(ReadingStatistics::timeText(150), u"2m30s"_s);
}

TEST(ReadingStatisticsLabel, NamesWordsAndTime) {
    EXPECT_EQ(ReadingStatistics::labelText(312, 150), u"312 words • ~2m30s"_s);
    EXPECT_EQ(ReadingStatistics::labelText(1, 0), u"1 words • ~5s"_s);
}

TEST(ReadingStatisticsLabel, TellsTheRateByItsColor) {
    EXPECT_EQ(ReadingStatistics::labelColor(ScrollRate::slow), SystemPalette::green);
    EXPECT_EQ(ReadingStatistics::labelColor(ScrollRate::medium), SystemPalette::yellow);
    EXPECT_EQ(ReadingStatistics::labelColor(ScrollRate::fast), SystemPalette::red);
}

TEST(ReadingTimeDeathTest, ATimeThatIsNotANumberIsFatal) {
    EXPECT_DEATH(ReadingStatistics::remainingSeconds(std::numeric_limits<double>::infinity(),
                                                     ScrollRate::slow),
                 "not a finite number");
}

} // namespace
} // namespace tessaline

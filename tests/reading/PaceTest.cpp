#include "reading/Pace.h"
#include "support/CaseName.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Estimate {
    double points;
    ScrollRate rate;
    double seconds;
    QString text;
};

class ReadingTime : public testing::TestWithParam<Estimate> {};

TEST_P(ReadingTime, IsEstimatedFromTheRateInStepsOfFiveSeconds) {
    const double seconds = Pace{2.0, GetParam().rate}.secondsFor(GetParam().points);
    EXPECT_EQ(seconds, GetParam().seconds);
    EXPECT_EQ(timeText(seconds), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Examples, ReadingTime,
                         testing::Values(Estimate{0, ScrollRate::medium, 0, u"5s"_s},
                                         Estimate{1000, ScrollRate::medium, 100, u"1m40s"_s},
                                         Estimate{1000, ScrollRate::fast, 65, u"1m5s"_s},
                                         Estimate{1000, ScrollRate::slow, 130, u"2m10s"_s},
                                         Estimate{1843, ScrollRate::medium, 180, u"3m"_s},
                                         Estimate{460, ScrollRate::medium, 45, u"45s"_s},
                                         Estimate{614.4, ScrollRate::medium, 60, u"1m"_s},
                                         Estimate{40000, ScrollRate::medium, 3905, u"65m5s"_s}),
                         byMember<&Estimate::text>);

TEST(ReadingTimeText, IsNeverBelowFiveSeconds) {
    EXPECT_EQ(timeText(0), u"5s"_s);
    EXPECT_EQ(timeText(5), u"5s"_s);
    EXPECT_EQ(timeText(55), u"55s"_s);
    EXPECT_EQ(timeText(150), u"2m30s"_s);
}

TEST(Pace, MovesByTheFactorOfTheRateAtHalfOfTheHighestSpeed) {
    for (const ScrollRate rate : allScrollRates) {
        EXPECT_DOUBLE_EQ((Pace{2.5, rate}.pointsPerSecond()), scrollFactor(rate));
        EXPECT_DOUBLE_EQ((Pace{5.0, rate}.pointsPerSecond()), 2 * scrollFactor(rate));
        EXPECT_EQ((Pace{0.0, rate}.pointsPerSecond()), 0);
    }
}

TEST(Pace, EstimatesTheSameTimeAtEverySpeed) {
    for (const double speed : {0.0, 1.0, 5.0})
        EXPECT_EQ((Pace{speed, ScrollRate::medium}.secondsFor(1000)), 100);
}

TEST(ReadingTimeDeathTest, ATimeThatIsNotANumberIsFatal) {
    constexpr double endless = std::numeric_limits<double>::infinity();
    EXPECT_DEATH((Pace{2.0, ScrollRate::slow}.secondsFor(endless)), "not a finite number");
}

} // namespace
} // namespace tessaline

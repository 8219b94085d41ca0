#include "prompter/ReadingStatistics.h"

#include "appearance/SystemPalette.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(ReadingStatisticsLabel, NamesWordsAndTime) {
    EXPECT_EQ(ReadingStatistics::labelText(312, 150), u"312 words • ~2m30s"_s);
    EXPECT_EQ(ReadingStatistics::labelText(1, 0), u"1 words • ~5s"_s);
}

TEST(ReadingStatisticsLabel, TellsTheRateByItsColor) {
    EXPECT_EQ(ReadingStatistics::labelColor(ScrollRate::slow), SystemPalette::green);
    EXPECT_EQ(ReadingStatistics::labelColor(ScrollRate::medium), SystemPalette::yellow);
    EXPECT_EQ(ReadingStatistics::labelColor(ScrollRate::fast), SystemPalette::red);
}

} // namespace
} // namespace tessaline

#include "platform/qt/StopSignals.h"
#include "support/CaseName.h"

#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

namespace tessaline {
namespace {

class StopSignalsTest : public testing::TestWithParam<int> {};
using StopSignalsDeathTest = StopSignalsTest;

INSTANTIATE_TEST_SUITE_P(Kinds, StopSignalsTest, testing::Values(SIGTERM, SIGINT, SIGHUP), byValue);
INSTANTIATE_TEST_SUITE_P(Kinds, StopSignalsDeathTest, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         byValue);

TEST_P(StopSignalsTest, CallFromTheEventLoop) {
    int stops = 0;
    const StopSignals watched([&] { ++stops; });
    std::raise(GetParam());
    EXPECT_EQ(stops, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return stops > 0; }));
    EXPECT_EQ(stops, 1);
}

TEST_P(StopSignalsDeathTest, EndTheProgramAtOnceTheSecondTime) {
    EXPECT_EXIT(
        {
            const StopSignals watched([] {});
            std::raise(GetParam());
            std::raise(GetParam());
        },
        testing::KilledBySignal(GetParam()), "");
}

TEST_P(StopSignalsDeathTest, EndTheProgramOnceNobodyWatches) {
    EXPECT_EXIT(
        {
            {
                const StopSignals watched([] {});
            }
            std::raise(GetParam());
        },
        testing::KilledBySignal(GetParam()), "");
}

TEST_P(StopSignalsTest, StaySwitchedOffIfTheyWere) {
    const auto handler = std::signal(GetParam(), SIG_IGN);
    int stops = 0;
    {
        const StopSignals watched([&] { ++stops; });
        std::raise(GetParam());
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(stops, 0);
    EXPECT_EQ(std::signal(GetParam(), handler), SIG_IGN);
}

TEST(StopSignals, CanBeWatchedAgain) {
    {
        const StopSignals first([] {});
    }
    int stops = 0;
    const StopSignals second([&] { ++stops; });
    std::raise(SIGTERM);
    EXPECT_TRUE(QTest::qWaitFor([&] { return stops == 1; }));
}

} // namespace
} // namespace tessaline

#include "remote/page/PairingLimit.h"

#include <gtest/gtest.h>

namespace tessaline {

namespace {

class PairingLimitTest : public testing::Test {
protected:
    void fail(const QByteArray& address, int times) {
        for (int i = 0; i < times; ++i)
            limit.failed(address, now);
    }
    bool mayTry(const QByteArray& address) { return limit.mayTry(address, now); }

    PairingLimit limit;
    PairingLimit::Time now{};
};

} // namespace

TEST_F(PairingLimitTest, AllowsFiveWrongTriesAMinute) {
    fail("a", 4);
    EXPECT_TRUE(mayTry("a"));
    fail("a", 1);
    EXPECT_FALSE(mayTry("a"));
    now += std::chrono::seconds(59);
    EXPECT_FALSE(mayTry("a"));
    now += std::chrono::seconds(1);
    EXPECT_TRUE(mayTry("a"));
}

TEST_F(PairingLimitTest, CountsTheTriesOfTheLastMinute) {
    fail("a", 1);
    now += std::chrono::seconds(30);
    fail("a", 4);
    EXPECT_FALSE(mayTry("a"));
    now += std::chrono::seconds(30);
    EXPECT_TRUE(mayTry("a"));
    fail("a", 1);
    EXPECT_FALSE(mayTry("a"));
}

TEST_F(PairingLimitTest, HoldsNobodyUpForAnother) {
    fail("a", 5);
    EXPECT_TRUE(mayTry("b"));
}

TEST_F(PairingLimitTest, RemembersNoMoreThanItMay) {
    fail("first", 5);
    fail("second", 4);
    for (std::size_t i = 2; i < PairingLimit::mostAddresses; ++i)
        fail(QByteArray::number(qulonglong(i)), 1);
    fail("second", 1); // which makes it the latest
    EXPECT_FALSE(mayTry("first"));
    fail("one more", 1);
    EXPECT_TRUE(mayTry("first"));
    EXPECT_FALSE(mayTry("second"));
}

} // namespace tessaline

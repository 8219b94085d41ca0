#include "remote/page/PageOrigin.h"

#include <gtest/gtest.h>

namespace tessaline {

TEST(PageOrigin, IsItsAddressAndPort) {
    const PageOrigin origin{"192.168.1.5", 4000};
    EXPECT_TRUE(origin.isHost("192.168.1.5:4000"));
    EXPECT_FALSE(origin.isHost("192.168.1.5"));
    EXPECT_FALSE(origin.isHost("192.168.1.5:4001"));
    EXPECT_FALSE(origin.isHost("192.168.1.50:4000"));
    EXPECT_FALSE(origin.isHost(""));
}

TEST(PageOrigin, IsNoNameThatSomebodyLedHere) {
    const PageOrigin origin{"192.168.1.5", 4000};
    EXPECT_FALSE(origin.isHost("rebound.example:4000"));
    EXPECT_FALSE(origin.isHost("localhost:4000"));
}

TEST(PageOrigin, IsTheLocalNameOnThisMachineAlone) {
    const PageOrigin origin{"127.0.0.1", 4000};
    EXPECT_TRUE(origin.isHost("127.0.0.1:4000"));
    EXPECT_TRUE(origin.isHost("localhost:4000"));
    EXPECT_FALSE(origin.isHost("localhost.example:4000"));
}

TEST(PageOrigin, WritesLongAddressesInBrackets) {
    EXPECT_EQ((PageOrigin{"fd00::5", 4000}.authority()), "[fd00::5]:4000");
}

} // namespace tessaline

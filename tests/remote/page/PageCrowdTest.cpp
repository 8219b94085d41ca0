#include "remote/page/PageCrowd.h"

#include <gtest/gtest.h>

namespace tessaline {

TEST(PageCrowd, HasRoomForEight) {
    PageCrowd crowd;
    for (PageCrowd::Client client = 1; client <= 8; ++client) {
        EXPECT_TRUE(crowd.hasRoom());
        crowd.add(client, {});
    }
    EXPECT_FALSE(crowd.hasRoom());
    crowd.remove(3);
    EXPECT_TRUE(crowd.hasRoom());
}

TEST(PageCrowd, LetsNobodyTellMoreThanAHandCan) {
    PageCrowd crowd;
    PageCrowd::Time now{};
    crowd.add(1, now);
    crowd.add(2, now);
    for (int i = 0; i < 80; ++i)
        EXPECT_TRUE(crowd.mayTell(1, now)) << i;
    EXPECT_FALSE(crowd.mayTell(1, now));
    EXPECT_TRUE(crowd.mayTell(2, now)) << "each has a share of its own";
}

TEST(PageCrowd, LetsOneTellOnAsTimePasses) {
    PageCrowd crowd;
    PageCrowd::Time now{};
    crowd.add(1, now);
    for (int i = 0; i < 1000; ++i) {
        EXPECT_TRUE(crowd.mayTell(1, now)) << i;
        now += std::chrono::milliseconds(25);
    }
}

TEST(PageCrowd, HearsNobodyWhoIsNotThere) {
    PageCrowd crowd;
    EXPECT_FALSE(crowd.mayTell(1, {}));
}

} // namespace tessaline

#include "platform/unsupported/UnsupportedDisplayLinkMaker.h"

#include <gmock/gmock.h>

namespace tessaline {

namespace {

TEST(UnsupportedDisplayLinkMaker, OffersNoLinkAtAnyRate) {
    UnsupportedDisplayLinkMaker maker;
    EXPECT_EQ(maker.make([](std::uint64_t) {}), nullptr);
    maker.setRefreshRate(60.0);
    EXPECT_EQ(maker.make([](std::uint64_t) {}), nullptr);
}

} // namespace

} // namespace tessaline

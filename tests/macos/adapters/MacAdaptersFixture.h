#pragma once

#include "macos/adapters/FakeMac.h"

#include "support/PrintQt.h"

#include <gmock/gmock.h>

namespace tessaline {

/// A fresh Mac for each test. When it ends, no reference is left and none was taken twice.
class MacAdaptersTest : public ::testing::Test {
protected:
    MacAdaptersTest() { startFakeMac(); }
    ~MacAdaptersTest() override {
        endFakeMac();
        EXPECT_THAT(FakeObjectiveC::livingObjects(), ::testing::IsEmpty());
        EXPECT_THAT(FakeObjectiveC::mistakes(), ::testing::IsEmpty());
    }
    MacAdaptersTest(const MacAdaptersTest&) = delete;
    MacAdaptersTest& operator=(const MacAdaptersTest&) = delete;

    /// What was asked since the last time.
    QStringList takeCalls() { return std::exchange(mac.calls, {}); }

    FakeMac& mac = fakeMac();
};

} // namespace tessaline

#include "platform/Lifetime.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

namespace tessaline {
namespace {

TEST(Lifetime, LetsCallsThroughWhileItLives) {
    const Lifetime lifetime;
    int sum = 0;
    const std::function<int(int)> add = lifetime.guard([&sum](int value) { return sum += value; });
    EXPECT_EQ(add(2), 2);
    EXPECT_EQ(add(3), 5);
}

TEST(Lifetime, LeavesCallsOutOnceItIsGone) {
    std::optional<Lifetime> lifetime(std::in_place);
    int calls = 0;
    const auto call = lifetime->guard([&calls] { return ++calls; });
    const auto copy = call;
    EXPECT_TRUE(copy.isAlive());
    lifetime.reset();
    EXPECT_FALSE(copy.isAlive());
    EXPECT_EQ(call(), 0);
    EXPECT_EQ(copy(), 0);
    EXPECT_EQ(calls, 0);
}

TEST(Lifetime, LeavesOutACallInsideTheOneThatEndsIt) {
    std::optional<Lifetime> lifetime(std::in_place);
    int calls = 0;
    const auto inner = lifetime->guard([&calls] { ++calls; });
    const auto outer = lifetime->guard([&] {
        lifetime.reset();
        inner();
    });
    outer();
    EXPECT_EQ(calls, 0);
}

TEST(Lifetime, KeepsNeitherOwnerNorActionAlive) {
    auto owned = std::make_shared<int>(1);
    const std::weak_ptr<int> watched = owned;
    {
        const Lifetime lifetime;
        const auto call = lifetime.guard([owned = std::move(owned)] { return *owned; });
        EXPECT_EQ(call(), 1);
    }
    EXPECT_TRUE(watched.expired());
}

} // namespace
} // namespace tessaline

#include "platform/RunThenPost.h"

#include "platform/Lifetime.h"
#include "support/FakeMainQueue.h"
#include "support/FakeTaskRunner.h"

#include <gtest/gtest.h>

#include <optional>

namespace tessaline {
namespace {

class RunThenPost : public testing::Test {
protected:
    FakeTaskRunner tasks;
    FakeMainQueue queue;
    int worked = 0;
    int finished = 0;

    auto work() {
        return [this] { return std::make_unique<int>(++worked); };
    }

    auto finish() {
        return [this](std::unique_ptr<int> result) { finished = *result; };
    }
};

TEST_F(RunThenPost, HandsTheResultOverOnceTheMainThreadHasItsTurn) {
    runThenPost(tasks, queue, work(), finish());
    EXPECT_EQ(worked, 0);
    tasks.runAll();
    EXPECT_EQ(worked, 1);
    EXPECT_EQ(finished, 0);
    queue.runAll();
    EXPECT_EQ(finished, 1);
}

TEST_F(RunThenPost, SparesTheWorkWhoseResultNobodyWants) {
    std::optional<Lifetime> lifetime(std::in_place);
    runThenPost(tasks, queue, work(), lifetime->guard(finish()));
    lifetime.reset();
    tasks.runAll();
    queue.runAll();
    EXPECT_EQ(worked, 0);
    EXPECT_EQ(finished, 0);
}

TEST_F(RunThenPost, ForgetsTheResultThatNobodyWantsAnyMore) {
    std::optional<Lifetime> lifetime(std::in_place);
    runThenPost(tasks, queue, work(), lifetime->guard(finish()));
    tasks.runAll();
    lifetime.reset();
    queue.runAll();
    EXPECT_EQ(worked, 1);
    EXPECT_EQ(finished, 0);
}

TEST_F(RunThenPost, DestroysTheCallbackOnTheMainThreadWhetherItIsWantedOrNot) {
    for (const bool isWanted : {true, false}) {
        std::optional<Lifetime> lifetime(std::in_place);
        auto owned = std::make_shared<int>();
        const std::weak_ptr<int> watched = owned;
        runThenPost(tasks, queue, work(),
                    lifetime->guard([owned = std::move(owned)](std::unique_ptr<int>) {}));
        if (!isWanted) lifetime.reset();
        tasks.runAll();
        EXPECT_FALSE(watched.expired());
        queue.runAll();
        EXPECT_TRUE(watched.expired());
    }
}

} // namespace
} // namespace tessaline

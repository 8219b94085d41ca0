#include "platform/qt/QtMainQueue.h"

#include "support/WaitUntil.h"

#include <gmock/gmock.h>

#include <numeric>
#include <set>
#include <thread>
#include <vector>

namespace tessaline {
namespace {

TEST(QtMainQueue, RunsTasksLaterInTheOrderOfPosting) {
    QtMainQueue queue;
    std::vector<int> ran;
    queue.post([&] { ran.push_back(1); });
    queue.post([&] { ran.push_back(2); });
    EXPECT_THAT(ran, ::testing::IsEmpty());
    ASSERT_TRUE(waitUntil([&] { return ran.size() == 2; }));
    EXPECT_THAT(ran, ::testing::ElementsAre(1, 2));
}

TEST(QtMainQueue, RunsTasksOfOtherThreadsOnItsOwnThreadInTheirOrder) {
    constexpr int count = 1000;
    QtMainQueue queue;
    std::vector<int> ran;
    std::set<std::thread::id> threads;
    std::thread poster([&] {
        for (int number = 0; number < count; ++number) {
            queue.post([&, number] {
                threads.insert(std::this_thread::get_id());
                ran.push_back(number);
            });
        }
    });
    EXPECT_TRUE(waitUntil([&] { return ran.size() == count; }));
    poster.join();
    std::vector<int> expected(count);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(ran, expected);
    EXPECT_THAT(threads, ::testing::ElementsAre(std::this_thread::get_id()));
}

TEST(QtMainQueue, DropsWhatHasNotRunWhenItGoes) {
    bool ran = false;
    {
        QtMainQueue queue;
        queue.post([&] { ran = true; });
    }
    QCoreApplication::processEvents();
    EXPECT_FALSE(ran);
}

} // namespace
} // namespace tessaline

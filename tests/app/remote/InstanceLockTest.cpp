#include "app/remote/InstanceLock.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class InstanceLockTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"lock"_s);
};

TEST_F(InstanceLockTest, IsHeldByOneAtATime) {
    auto first = InstanceLock::take(path);
    ASSERT_TRUE(first);
    EXPECT_FALSE(InstanceLock::take(path));
    first.reset();
    EXPECT_TRUE(InstanceLock::take(path));
}

TEST_F(InstanceLockTest, KeepsItsFileFromOtherUsers) {
    ASSERT_TRUE(InstanceLock::take(path));
    EXPECT_EQ(QFile::permissions(path),
              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
}

TEST_F(InstanceLockTest, LeavesNoFileOpenWhereItIsNotHad) {
    const auto held = InstanceLock::take(path);
    const int next = ::dup(STDERR_FILENO);
    ::close(next);
    EXPECT_FALSE(InstanceLock::take(path));
    const int nextAfterwards = ::dup(STDERR_FILENO);
    ::close(nextAfterwards);
    EXPECT_EQ(nextAfterwards, next);
}

TEST_F(InstanceLockTest, IsReleasedWhenItsHolderIsKilled) {
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const auto lock = InstanceLock::take(path);
        const char held = lock ? 'y' : 'n';
        if (::write(ready[1], &held, 1) != 1) ::_exit(1);
        ::pause();
        ::_exit(1);
    }
    char held = 0;
    ASSERT_EQ(::read(ready[0], &held, 1), 1);
    EXPECT_EQ(held, 'y');
    EXPECT_FALSE(InstanceLock::take(path));
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(InstanceLock::take(path));
    ::close(ready[0]);
    ::close(ready[1]);
}

TEST_F(InstanceLockTest, FollowsNoLink) {
    ASSERT_TRUE(QFile::link(folder.filePath(u"elsewhere"_s), path));
    EXPECT_FALSE(InstanceLock::take(path));
    EXPECT_FALSE(QFile::exists(folder.filePath(u"elsewhere"_s)));
}

TEST_F(InstanceLockTest, CannotBeTakenWithoutItsFolder) {
    EXPECT_FALSE(InstanceLock::take(u"/nowhere/lock"_s));
}

} // namespace
} // namespace tessaline

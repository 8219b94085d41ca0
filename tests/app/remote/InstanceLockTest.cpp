#include "app/remote/InstanceLock.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class InstanceLockTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"lock"_s);
    QString problem;
};

TEST_F(InstanceLockTest, IsHeldByOneAtATime) {
    auto first = InstanceLock::take(path, &problem);
    ASSERT_TRUE(first);
    EXPECT_FALSE(InstanceLock::take(path, &problem));
    EXPECT_EQ(problem, QString());
    first.reset();
    EXPECT_TRUE(InstanceLock::take(path, &problem));
}

TEST_F(InstanceLockTest, KeepsItsFileFromOtherUsers) {
    ASSERT_TRUE(InstanceLock::take(path, &problem));
    EXPECT_EQ(QFile::permissions(path),
              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
}

TEST_F(InstanceLockTest, LeavesNoFileOpenWhereItIsNotHad) {
    const auto held = InstanceLock::take(path, &problem);
    const int next = ::dup(STDERR_FILENO);
    ::close(next);
    EXPECT_FALSE(InstanceLock::take(path, &problem));
    const int nextAfterwards = ::dup(STDERR_FILENO);
    ::close(nextAfterwards);
    EXPECT_EQ(nextAfterwards, next);
}

TEST_F(InstanceLockTest, IsReleasedWhenItsHolderIsKilled) {
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const auto lock = InstanceLock::take(path, &problem);
        const char held = lock ? 'y' : 'n';
        if (::write(ready[1], &held, 1) != 1) ::_exit(1);
        ::pause();
        ::_exit(1);
    }
    char held = 0;
    ASSERT_EQ(::read(ready[0], &held, 1), 1);
    EXPECT_EQ(held, 'y');
    EXPECT_FALSE(InstanceLock::take(path, &problem));
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(InstanceLock::take(path, &problem));
    ::close(ready[0]);
    ::close(ready[1]);
}

TEST_F(InstanceLockTest, FollowsNoLink) {
    ASSERT_TRUE(QFile::link(folder.filePath(u"elsewhere"_s), path));
    EXPECT_FALSE(InstanceLock::take(path, &problem));
    EXPECT_FALSE(QFile::exists(folder.filePath(u"elsewhere"_s)));
    EXPECT_TRUE(problem.startsWith(u"cannot lock %1: "_s.arg(path)));
}

TEST_F(InstanceLockTest, TellsWhyItCannotBeTaken) {
    EXPECT_FALSE(InstanceLock::take(folder.path(), &problem));
    EXPECT_EQ(problem, u"cannot lock %1: Is a directory"_s.arg(folder.path()));
    EXPECT_FALSE(InstanceLock::take(u"/nowhere/lock"_s, &problem));
    EXPECT_EQ(problem, u"cannot lock /nowhere/lock: No such file or directory"_s);
    EXPECT_TRUE(InstanceLock::take(path, &problem));
    EXPECT_EQ(problem, QString());
}

TEST_F(InstanceLockTest, IsLookedAtWithoutBeingTaken) {
    EXPECT_FALSE(InstanceLock::isHeld(path));
    EXPECT_FALSE(QFile::exists(path));
    auto lock = InstanceLock::take(path, &problem);
    EXPECT_TRUE(InstanceLock::isHeld(path));
    lock.reset();
    EXPECT_FALSE(InstanceLock::isHeld(path));
    EXPECT_TRUE(InstanceLock::take(path, &problem));
}

TEST_F(InstanceLockTest, IsHeldWhereNothingCanBeWrittenAnyMore) {
    const auto held = InstanceLock::take(path, &problem);
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner));
    EXPECT_FALSE(InstanceLock::take(path, &problem));
    EXPECT_EQ(problem, QString());
}

TEST_F(InstanceLockTest, WaitsForNobodyWhateverLiesInItsPlace) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_TRUE(InstanceLock::take(path, &problem)); // a FIFO locks as well as a file
}

} // namespace
} // namespace tessaline

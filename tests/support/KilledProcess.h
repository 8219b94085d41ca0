#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <functional>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tessaline {

/// What parent and child processes both see.
class SharedFlag {
public:
    SharedFlag()
        : flag(static_cast<std::atomic<bool>*>(::mmap(nullptr, sizeof(std::atomic<bool>),
                                                      PROT_READ | PROT_WRITE,
                                                      MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {}
    ~SharedFlag() { ::munmap(flag, sizeof(std::atomic<bool>)); }
    SharedFlag(const SharedFlag&) = delete;
    SharedFlag& operator=(const SharedFlag&) = delete;

    void set(bool value) { *flag = value; }
    bool isSet() const { return *flag; }

private:
    std::atomic<bool>* flag;
};

/// Child processes that do nothing but save, each killed at a random moment.
class KilledProcess {
public:
    /// Lets a child process call `prepare` with 1, 2, … and `save` after each, and kills it.
    void killDuring(const std::function<void(int)>& prepare, const std::function<void()>& save) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) saveForever(prepare, save);
        std::uniform_int_distribution<int> microseconds(0, 10'000);
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        killed += saving.isSet() ? 1 : 0;
        saving.set(false);
    }

    /// How many of them were saving when they were killed.
    int killedWhileSaving() const { return killed; }

private:
    [[noreturn]] void saveForever(const std::function<void(int)>& prepare,
                                  const std::function<void()>& save) {
        for (int turn = 1;; ++turn) {
            prepare(turn);
            saving.set(true);
            save();
            saving.set(false);
        }
    }

    std::mt19937 random{std::random_device{}()};
    SharedFlag saving;
    int killed = 0;
};

} // namespace tessaline

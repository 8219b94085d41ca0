#include "settings/AppSettings.h"

#include "settings/SettingsCodec.h"
#include "settings/TemporaryHome.h"
#include "settings/WholeFile.h"
#include "support/TestFiles.h"

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
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Settings that can be told apart, and told whole, by their number.
PersistedSettings version(int number, int length) {
    PersistedSettings settings;
    settings.fontSize = number;
    settings.notePath = QString(length + number % 100, QChar(u'a' + number % 26));
    return settings;
}

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

/// A process is killed at random moments while it does nothing but save.
class AppSettingsKill : public testing::Test {
protected:
    static constexpr int kills = 100;

    TemporaryHome home;
    QString path = home.path() + u"/config.json"_s;
    std::mt19937 random{std::random_device{}()};
    SharedFlag saving;
    int killedWhileSaving = 0;

    [[noreturn]] void saveForever(const std::function<void(int)>& prepare,
                                  const std::function<void()>& save) {
        for (int turn = 1;; ++turn) {
            prepare(turn);
            saving.set(true);
            save();
            saving.set(false);
        }
    }

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
        killedWhileSaving += saving.isSet() ? 1 : 0;
        saving.set(false);
    }

    /// The number of the version in the file; fails the test when the file is not one of them.
    int versionFound(int length) const {
        QString error;
        const auto found = decodeSettings(fileBytes(path), &error);
        EXPECT_TRUE(found.has_value()) << error.toStdString();
        const int number = found ? static_cast<int>(found->fontSize) : 0;
        EXPECT_EQ(found, version(number, length));
        return number;
    }
};

TEST_F(AppSettingsKill, LeavesTheLastOrTheNextSettings) {
    constexpr int length = 1000;
    AppSettings settings(path);
    PersistedSettings& values = settings;
    int number = 1;
    values = version(number, length);
    settings.save();
    for (int kill = 0; kill < kills; ++kill) {
        ASSERT_NO_FATAL_FAILURE(killDuring(
            [&](int turn) { values = version(number + turn, length); }, [&] { settings.save(); }));
        const int found = versionFound(length);
        ASSERT_FALSE(HasFailure());
        ASSERT_GE(found, number);
        number = found;
    }
    EXPECT_GT(number, 1);
    EXPECT_GT(killedWhileSaving, 0);
    RecordProperty("savesThatSucceeded", number);
    RecordProperty("killedWhileSaving", killedWhileSaving);
}

TEST_F(AppSettingsKill, InTheMiddleOfALongWriteLeavesAWholeFile) {
    constexpr int length = 500'000;
    std::vector<QByteArray> versions;
    versions.reserve(5);
    for (int number = 0; number < 5; ++number)
        versions.push_back(encodeSettings(version(number, length)).value());
    ASSERT_TRUE(writeWholeFile(path, versions.front()));
    for (int kill = 0; kill < kills; ++kill) {
        QByteArray bytes;
        ASSERT_NO_FATAL_FAILURE(killDuring(
            [&](int turn) { bytes = versions[static_cast<std::size_t>(turn) % versions.size()]; },
            [&] { writeWholeFile(path, bytes); }));
        versionFound(length);
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(killedWhileSaving, 0);
    RecordProperty("killedWhileSaving", killedWhileSaving);
}

} // namespace
} // namespace tessaline

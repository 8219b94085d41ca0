#include "settings/AppSettings.h"

#include "settings/SettingsCodec.h"
#include "settings/TemporaryHome.h"
#include "settings/WholeFile.h"
#include "support/KilledProcess.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

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

/// A process is killed at random moments while it does nothing but save.
class AppSettingsKill : public testing::Test {
protected:
    static constexpr int kills = 100;

    TemporaryHome home;
    QString path = home.path() + u"/config.json"_s;
    KilledProcess process;

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
    const auto save = [&](const PersistedSettings& next) {
        settings.change([&](PersistedSettings& values) { values = next; });
    };
    PersistedSettings next = version(1, length);
    int number = 1;
    save(next);
    for (int kill = 0; kill < kills; ++kill) {
        ASSERT_NO_FATAL_FAILURE(process.killDuring(
            [&](int turn) { next = version(number + turn, length); }, [&] { save(next); }));
        const int found = versionFound(length);
        ASSERT_FALSE(HasFailure());
        ASSERT_GE(found, number);
        number = found;
    }
    EXPECT_GT(number, 1);
    EXPECT_GT(process.killedWhileSaving(), 0);
    RecordProperty("savesThatSucceeded", number);
    RecordProperty("killedWhileSaving", process.killedWhileSaving());
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
        ASSERT_NO_FATAL_FAILURE(process.killDuring(
            [&](int turn) { bytes = versions[static_cast<std::size_t>(turn) % versions.size()]; },
            [&] { writeWholeFile(path, bytes); }));
        versionFound(length);
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(process.killedWhileSaving(), 0);
    RecordProperty("killedWhileSaving", process.killedWhileSaving());
}

} // namespace
} // namespace tessaline

#include "platform/ThreadTaskRunner.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtTimerMaker.h"
#include "sources/ObsidianSource.h"
#include "support/CaseName.h"
#include "support/FakeTimerMaker.h"
#include "support/NotAFile.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"
#include "support/WaitUntil.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <atomic>
#include <cstdio>
#include <optional>
#include <thread>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;

namespace tessaline {
namespace {

/// Real files, threads and queues; polls come as fast as the test asks for them.
class ObsidianSourceFilesTest : public ::testing::Test {
protected:
    void start() {
        source->startWatching([this](const QString& text) { delivered.push_back(text); });
        finishTasks();
    }

    void poll() {
        timers.advance(1.0);
        finishTasks();
    }

    void finishTasks() {
        bool finished = false;
        runner->run([&] { queue.post([&] { finished = true; }); });
        ASSERT_TRUE(waitUntil([&] { return finished; }));
    }

    /// Writes in place, piece by piece, as an editor without any care would.
    void rewriteInPlace(const QByteArray& bytes) const {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const qsizetype piece = bytes.size() / 5 + 1;
        for (qsizetype start = 0; start < bytes.size(); start += piece) {
            file.write(bytes.mid(start, piece));
            std::this_thread::yield();
        }
    }

    void rewriteByRename(const QByteArray& bytes) const {
        const auto beside = path + ".new"_L1;
        putFile(beside, bytes);
        ASSERT_EQ(std::rename(QFile::encodeName(beside), QFile::encodeName(path)), 0);
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"tessaline-content.md"_s);
    QtMainQueue queue;
    std::optional<ThreadTaskRunner> runner{std::in_place};
    FakeTimerMaker timers;
    std::vector<QString> delivered;
    std::optional<ObsidianSource> source{std::in_place, queue, *runner, timers, path};
};

/// Text number `version`: one letter throughout, in a length of its own, so that no two texts and
/// no parts of them make up another.
QByteArray wholeText(int version) {
    const QByteArray line(60, static_cast<char>('a' + version % 26));
    return (line + '\n').repeated(200 + version * 7 % 500) + QByteArray::number(version);
}

bool isWhole(const QString& text) {
    const auto version = text.mid(text.lastIndexOf(u'\n') + 1);
    bool isNumber = false;
    const int number = version.toInt(&isNumber);
    return isNumber && text == QString::fromLatin1(wholeText(number));
}

TEST_F(ObsidianSourceFilesTest, DeliversFiftyMegabytesAndAChangeAtTheirEnd) {
    constexpr qsizetype megabyte = 1 << 20;
    QByteArray bytes =
        QByteArray("Fifty megabytes of prose, and \xC3\xA4.\n").repeated(2 * megabyte);
    bytes.truncate(50 * megabyte);
    bytes.back() = '1';
    putFile(path, bytes);
    start();
    poll();
    ASSERT_EQ(delivered.size(), 1U);
    EXPECT_TRUE(delivered[0] == QString::fromUtf8(bytes));
    bytes.back() = '2';
    rewriteByRename(bytes);
    poll();
    ASSERT_EQ(delivered.size(), 2U);
    EXPECT_TRUE(delivered[1] == QString::fromUtf8(bytes));
}

TEST_F(ObsidianSourceFilesTest, LeavesTheLastTextInPlaceAtInvalidUtf8) {
    putFile(path, "A");
    start();
    putFile(path, "\xC3\x28");
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
}

class ObsidianSourceFilesReplaced : public ObsidianSourceFilesTest,
                                    public ::testing::WithParamInterface<NotAFile> {};

TEST_P(ObsidianSourceFilesReplaced, LeavesTheLastTextInPlaceAndBlocksNothing) {
    putFile(path, "A");
    start();
    placeNotAFile(GetParam(), path);
    poll();
    EXPECT_THAT(delivered, ElementsAre(u"A"_s));
}

INSTANTIATE_TEST_SUITE_P(By, ObsidianSourceFilesReplaced, ::testing::ValuesIn(allNotAFile),
                         byValue);

TEST_F(ObsidianSourceFilesTest, DeliversWholeTextsOnlyWhileTheFileIsReplacedByRenames) {
    constexpr int versions = 500;
    rewriteByRename(wholeText(0));
    start();
    std::atomic<bool> finished = false;
    std::thread writer([&] {
        for (int version = 1; version <= versions; ++version) {
            rewriteByRename(wholeText(version));
        }
        finished = true;
    });
    while (!finished) {
        poll();
    }
    writer.join();
    poll();
    EXPECT_GT(delivered.size(), 2U);
    EXPECT_THAT(delivered, ::testing::Each(::testing::Truly(isWhole)));
    EXPECT_EQ(delivered.back(), QString::fromLatin1(wholeText(versions)));
}

TEST_F(ObsidianSourceFilesTest, ShowsTheWholeTextOnePollAfterEachRewriteInPlace) {
    constexpr int versions = 100;
    rewriteInPlace(wholeText(0));
    start();
    std::size_t deliveredWhileWriting = 0;
    for (int version = 1; version <= versions; ++version) {
        const auto before = delivered.size();
        std::atomic<bool> finished = false;
        std::thread writer([&] {
            rewriteInPlace(wholeText(version));
            finished = true;
        });
        while (!finished) {
            poll();
        }
        writer.join();
        deliveredWhileWriting += delivered.size() - before;
        poll();
        ASSERT_EQ(delivered.back(), QString::fromLatin1(wholeText(version)));
    }
    EXPECT_GT(deliveredWhileWriting, 0U);
}

TEST_F(ObsidianSourceFilesTest, MayGoWhileTheFileIsRead) {
    putFile(path, QByteArray(1 << 20, 'a'));
    for (int round = 0; round < 50; ++round) {
        source.emplace(queue, *runner, timers, path);
        source->startWatching([this](const QString& text) { delivered.push_back(text); });
        std::this_thread::yield();
        source.reset();
    }
    finishTasks();
    EXPECT_THAT(delivered, ElementsAre());
}

TEST_F(ObsidianSourceFilesTest, ReleasesCallbacksOnTheMainThread) {
    struct Probe {
        std::atomic<bool>& elsewhere;
        std::thread::id main = std::this_thread::get_id();
        ~Probe() { elsewhere = elsewhere || std::this_thread::get_id() != main; }
    };
    std::atomic<bool> elsewhere = false;
    putFile(path, QByteArray(1 << 20, 'a'));
    for (int round = 0; round < 50; ++round) {
        source->startWatching(
            [probe = std::make_shared<Probe>(Probe{elsewhere})](const QString&) {});
        finishTasks();
        timers.advance(1.0);
        source->stopWatching();
        finishTasks();
    }
    EXPECT_FALSE(elsewhere);
}

TEST_F(ObsidianSourceFilesTest, MayGoWithItsRunnerAndQueueWhileTheFileIsRead) {
    putFile(path, QByteArray(1 << 20, 'a'));
    source->startWatching([this](const QString& text) { delivered.push_back(text); });
    source.reset();
    runner.reset();
    QCoreApplication::processEvents();
    EXPECT_THAT(delivered, ElementsAre());
}

TEST_F(ObsidianSourceFilesTest, NoticesAnEditWithinAboutASecond) {
    QtTimerMaker realTimers;
    source.emplace(queue, *runner, realTimers, path);
    putFile(path, "A");
    start();
    putFile(path, "B");
    const auto written = std::chrono::steady_clock::now();
    ASSERT_TRUE(waitUntil([&] { return delivered.size() == 2; }));
    EXPECT_LT(std::chrono::steady_clock::now() - written, std::chrono::seconds(3));
    EXPECT_THAT(delivered, ElementsAre(u"A"_s, u"B"_s));
    source.reset();
}

} // namespace
} // namespace tessaline

#include "platform/qt/QtProcessRunner.h"

#include "support/PrintQt.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <ostream>
#include <thread>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

void PrintTo(const ProcessResult& result, std::ostream* out) {
    *out << result.exitCode << " \"" << result.output.toStdString() << "\" \""
         << result.error.toStdString() << '"';
}

namespace {

class QtProcessRunnerTest : public ::testing::Test {
protected:
    ProcessResult runScript(const QString& script) {
        return runner.run(u"/bin/sh"_s, {u"-c"_s, script});
    }

    QtProcessRunner runner;
};

TEST_F(QtProcessRunnerTest, CollectsWhatAProgramLeaves) {
    EXPECT_EQ(runScript(u"echo out; echo err >&2; exit 3"_s),
              (ProcessResult{u"out"_s, u"err"_s, 3}));
    EXPECT_EQ(runScript(u":"_s), (ProcessResult{{}, {}, 0}));
}

TEST_F(QtProcessRunnerTest, TrimsWhiteSpaceAndNewlinesAtBothEnds) {
    EXPECT_EQ(runScript(uR"(printf ' \t\n\302\240a  b\n c\r\n\342\200\250'; printf '\n \n' >&2)"_s),
              (ProcessResult{u"a  b\n c"_s, {}, 0}));
}

TEST_F(QtProcessRunnerTest, DecodesUtf8OrNothing) {
    EXPECT_EQ(runScript(uR"(printf 'h\303\251'; printf 'a\377' >&2)"_s),
              (ProcessResult{u"hé"_s, {}, 0}));
    EXPECT_EQ(runScript(uR"(printf 'h\303')"_s), (ProcessResult{{}, {}, 0}));
}

TEST_F(QtProcessRunnerTest, PutsNoShellInBetween) {
    const QStringList arguments{u"%s|"_s,           u"a b"_s, u"\"c\" 'd'"_s,
                                u"$HOME `e` \\n"_s, u""_s,    u"*"_s};
    EXPECT_EQ(runner.run(u"/usr/bin/printf"_s, arguments).output,
              u"a b|\"c\" 'd'|$HOME `e` \\n||*|"_s);
}

TEST_F(QtProcessRunnerTest, DescribesWhyAProgramDoesNotStart) {
    EXPECT_EQ(runner.run(u"/missing/program"_s, {}),
              (ProcessResult{{}, u"No such file or directory"_s, -1, false, {}}));
    const QTemporaryDir folder;
    EXPECT_EQ(runner.run(folder.path(), {}),
              (ProcessResult{{}, u"Permission denied"_s, -1, false, {}}));
}

TEST_F(QtProcessRunnerTest, HasNoExitCodeOfAProgramThatWasKilled) {
    EXPECT_EQ(runScript(u"echo out; kill -9 $$"_s), (ProcessResult{u"out"_s, {}, -1}));
}

TEST_F(QtProcessRunnerTest, TakesMoreThanAPipeHoldsOnBothSides) {
    const auto result = runScript(u"head -c 3000000 /dev/zero | tr '\\0' e >&2;"
                                  "head -c 3000000 /dev/zero | tr '\\0' o"_s);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, QString(3'000'000, u'o'));
    EXPECT_EQ(result.error, QString(3'000'000, u'e'));
}

TEST_F(QtProcessRunnerTest, GivesNothingToRead) {
    EXPECT_EQ(runner.run(u"/bin/cat"_s, {}), (ProcessResult{{}, {}, 0}));
}

TEST_F(QtProcessRunnerTest, RunsOnSeveralThreadsAtOnce) {
    std::atomic<int> successes = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([this, thread, &successes] {
            const QString number = QString::number(thread);
            for (int run = 0; run < 5; ++run) {
                successes += runScript("echo "_L1 + number + "; exit "_L1 + number) ==
                             ProcessResult{number, {}, thread};
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(successes, 20);
}

TEST_F(QtProcessRunnerTest, KillsAProgramThatTakesTooLong) {
    using namespace std::chrono_literals;
    const auto result = runner.run(u"/bin/sleep"_s, {u"3600"_s}, {.time = 0s});
    EXPECT_EQ(result.exitCode, -1);
    EXPECT_EQ(result.exceeded, ProcessLimits::Kind::time);
    EXPECT_TRUE(result.hasStarted);
}

TEST_F(QtProcessRunnerTest, KillsAProgramThatSaysTooMuch) {
    const auto result = runner.run(u"/usr/bin/yes"_s, {}, {.outputBytes = 1 << 20});
    EXPECT_EQ(result.exitCode, -1);
    EXPECT_EQ(result.exceeded, ProcessLimits::Kind::output);
    EXPECT_EQ(runner.run(u"/bin/echo"_s, {u"out"_s}, {.outputBytes = 1 << 20}),
              (ProcessResult{u"out"_s, {}, 0}));
}

TEST_F(QtProcessRunnerTest, RefusesAProgramMoreMemoryThanAllowed) {
    const QString script = uR"(ulimit -v)"_s;
    const auto result =
        runner.run(u"/bin/sh"_s, {u"-c"_s, script}, {.memoryBytes = quint64{1} << 30});
    EXPECT_EQ(result.output, QString::number((1 << 30) / 1024));
}

TEST_F(QtProcessRunnerTest, DoesNotWaitOnceItIsStopped) {
    const QTemporaryDir folder;
    const QString started = folder.filePath(u"started"_s);
    ProcessResult result;
    std::thread thread([&] {
        result = runner.run(u"/bin/sh"_s, {u"-c"_s, u"touch \"$0\"; exec sleep 3600"_s, started});
    });
    while (!QFileInfo::exists(started))
        std::this_thread::yield();
    runner.stop();
    thread.join();
    EXPECT_EQ(result, (ProcessResult{{}, {}, -1}));
    EXPECT_EQ(runScript(u"echo out"_s).exitCode, -1);
}

} // namespace
} // namespace tessaline

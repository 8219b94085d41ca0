#include "Samples.h"
#include "Verdicts.h"

#include "analytics/Analytics.h"
#include "analytics/EnvironmentProbe.h"
#include "platform/BundleInformation.h"
#include "platform/Platform.h"
#include "platform/ThreadTaskRunner.h"
#include "platform/qt/QtTimerMaker.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <future>
#include <optional>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

using namespace tessaline;
using namespace Qt::Literals::StringLiterals;

constexpr int historyLength = 100'000;

class NoBundle final : public BundleInformation {
public:
    std::optional<QString> identifier() const override { return std::nullopt; }
    std::optional<QString> value(const QString&) const override { return std::nullopt; }
    std::optional<QString> resourceFolder() const override { return std::nullopt; }
};

class BareEnvironment final : public EnvironmentProbe {
public:
    bool isObsidianAppInstalled() const override { return false; }
    bool isObsidianVaultFound() const override { return false; }
    bool isObsidianPluginInstalled() const override { return false; }
    bool isObsidianPluginActive() const override { return false; }
    bool isAccessibilityGranted() const override { return false; }
    int screenCount() const override { return 1; }
};

/// Processor time of this thread, in milliseconds. The writer's thread, which a flush wakes, may
/// get this one's core for a while when the machine is busy: that is not counted.
template <typename Action>
double ownMilliseconds(Action action) {
    const double start = threadMilliseconds();
    action();
    return threadMilliseconds() - start;
}

/// Wall time, in milliseconds; waiting for locks and files is counted.
template <typename Action>
double milliseconds(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// A recorder with what surrounds it in the program, and a history file of its own.
class Stage {
public:
    explicit Stage(QString historyPath) : path(std::move(historyPath)) {
        platform.timers = std::make_unique<QtTimerMaker>();
        platform.historyTasks = std::make_unique<ThreadTaskRunner>();
        platform.bundle = std::make_unique<NoBundle>();
    }

    std::unique_ptr<Analytics> makeRecorder() {
        return std::make_unique<Analytics>(
            Analytics::Setup{.platform = platform,
                             .environment = environment,
                             .signal = [](const QString&, const Analytics::Properties&) {},
                             .historyPath = path});
    }

    void waitForFileTasks() {
        std::promise<void> done;
        platform.historyTasks->run([&done] { done.set_value(); });
        done.get_future().wait();
    }

    static void recordSome(Analytics& recorder, int count) {
        for (int i = 0; i < count; ++i)
            recorder.trackContentLoaded(SourceType::obsidian, i);
    }

    const QString path;

private:
    Platform platform;
    BareEnvironment environment;
};

constexpr std::size_t runs = 9;
using Times = std::vector<double>;

/// How long flushes, and recording beside their writing, keep the main thread.
void measureFlushes(Stage& stage, Verdicts& verdicts) {
    Times firstFlush(runs), nextFlush(runs), recording(runs), lastFlush(runs);
    for (std::size_t run = 0; run < runs; ++run) {
        QFile::remove(stage.path);
        const auto recorder = stage.makeRecorder();
        Stage::recordSome(*recorder, historyLength);
        firstFlush[run] = ownMilliseconds([&] { recorder->flush(); });
        recording[run] = milliseconds([&] { Stage::recordSome(*recorder, 1000); });
        stage.waitForFileTasks();
        nextFlush[run] = ownMilliseconds([&] { recorder->flush(); });
        lastFlush[run] = milliseconds([&] { recorder->trackAppTerminate(); });
        // The flush before the last may not have had its turn yet, and would bring the file back.
        stage.waitForFileTasks();
    }
    verdicts.judge(u"Flush of 100,000 new usage events, on the main thread"_s, median(firstFlush),
                   4, "ms");
    verdicts.judge(u"1,000 usage events recorded while that is written, by the clock"_s,
                   median(recording), 40, "ms");
    verdicts.judge(u"Flush with 100,000 old usage events, on the main thread"_s, median(nextFlush),
                   4, "ms");
    verdicts.judge(u"Last flush of that history at the end, by the clock"_s, median(lastFlush), 250,
                   "ms");
}

/// What this process has in memory, in MiB; none on a system that does not say.
std::optional<double> residentMemory() {
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    const double pages = file.readAll().split(' ').at(1).toDouble();
    return pages * double(::sysconf(_SC_PAGESIZE)) / (1 << 20);
}

/// Prints what the history at `path` takes of the memory, in MiB, once it is read.
int printKeptMemory(const QString& path) {
    Stage stage(path);
    const auto before = residentMemory();
    const auto recorder = stage.makeRecorder();
    stage.waitForFileTasks();
    const auto after = residentMemory();
    if (!before || !after) return 1;
    std::printf("%f", *after - *before);
    return 0;
}

/// The same, from a process that has not done anything before. None where nobody can tell.
std::optional<double> keptMemory(const QString& path) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {path});
    if (!process.waitForFinished() || process.exitCode() != 0) return std::nullopt;
    return process.readAll().toDouble();
}

/// What a history costs that is there at the start.
void measureStart(Stage& stage, Verdicts& verdicts, double longestReading, double longestEnd) {
    const qint64 megabytes = QFileInfo(stage.path).size() / 1'000'000;
    Times start(runs), reading(runs), ending(runs);
    for (std::size_t run = 0; run < runs; ++run) {
        {
            std::unique_ptr<Analytics> recorder;
            start[run] = ownMilliseconds([&] { recorder = stage.makeRecorder(); });
            reading[run] = milliseconds([&] { stage.waitForFileTasks(); });
        }
        const auto recorder = stage.makeRecorder();
        ending[run] = milliseconds([&] { recorder->trackAppTerminate(); });
        stage.waitForFileTasks();
    }
    const QString history = u" a usage history of %1 MB"_s.arg(megabytes);
    verdicts.judge(u"Start with"_s + history + u", on the main thread"_s, median(start), 4, "ms");
    verdicts.judge(u"Reading"_s + history + u" in the background, by the clock"_s, median(reading),
                   longestReading, "ms");
    verdicts.judge(u"End right after starting with"_s + history + u", by the clock"_s,
                   median(ending), longestEnd, "ms");
    if (const auto kept = keptMemory(stage.path))
        verdicts.judge(u"Memory that stays taken by"_s + history, *kept, 10, "MiB");
}

/// Makes the history file at least this long by repeating its events.
void lengthen(const QString& path, qint64 size) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("There is no history");
    const QByteArray events = file.readAll().mid(2).chopped(3);
    QByteArray longer = "[\n" + events;
    while (longer.size() < size)
        longer += ",\n" + events;
    file.close();
    if (!file.open(QIODevice::WriteOnly) || file.write(longer + "\n]\n") < size)
        qFatal("There is no room for a long history");
}

} // namespace

/// Measures what recording usage costs with a long history. Exits with 1 when something takes
/// longer than wanted.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc > 1) return printKeptMemory(QCoreApplication::arguments().at(1));
    Verdicts verdicts;
    const QTemporaryDir folder;
    Stage stage(folder.filePath(u"analytics.json"_s));
    measureFlushes(stage, verdicts);
    measureStart(stage, verdicts, 150, 300);
    lengthen(stage.path, 100'000'000);
    measureStart(stage, verdicts, 1000, 2000);
    return verdicts.exitStatus();
}

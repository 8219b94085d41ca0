#include "PrompterHome.h"
#include "RunningProgram.h"
#include "Samples.h"
#include "Verdicts.h"
#include "WatchedScreen.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLocale>
#include <QProcess>
#include <QStringList>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace tessaline;

constexpr int settleMs = 3000;
constexpr int watchedSeconds = 20;
constexpr qint64 longestMs = 10'000;

double milliseconds(const QElapsedTimer& clock) {
    return double(clock.nsecsElapsed()) / 1e6;
}

/// How long something takes at the median when it was done before.
template <typename Action>
double warmMilliseconds(Action action) {
    action();
    std::vector<double> times(11);
    std::generate(times.begin(), times.end(), action);
    return median(std::move(times));
}

/// Milliseconds that a program takes from its start to its end.
double runToEnd(const QString& program, const QStringList& arguments, const PrompterHome& home) {
    QProcess process;
    process.setProcessEnvironment(home.environment());
    QElapsedTimer clock;
    clock.start();
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        qFatal("%s failed: %s", qPrintable(program), process.readAllStandardError().constData());
    }
    return milliseconds(clock);
}

/// Watches until the screen shows text, or shows none any more.
void awaitText(const WatchedScreen& screen, bool shown, const QElapsedTimer& clock) {
    while (screen.showsText() != shown && clock.elapsed() < longestMs)
        QThread::usleep(500);
}

void measureStart(Verdicts& verdicts) {
    const PrompterHome home(10'000, "\"autoScrollEnabled\": false");
    const double time = warmMilliseconds([&home] {
        const WatchedScreen screen;
        QElapsedTimer clock;
        clock.start();
        const RunningProgram program(home);
        awaitText(screen, true, clock);
        return milliseconds(clock);
    });
    verdicts.judge(u"Start to the first painted frame, 10,000 words, warm: median"_s, time, 250,
                   "ms");
}

double shareOfACore(const RunningProgram& program) {
    QElapsedTimer clock;
    clock.start();
    const double before = program.processorSeconds();
    QThread::sleep(watchedSeconds);
    return (program.processorSeconds() - before) / (milliseconds(clock) / 1e3) * 100;
}

void measurePause(Verdicts& verdicts) {
    const PrompterHome home(10'000, "\"autoScrollEnabled\": false");
    const RunningProgram program(home);
    QThread::msleep(settleMs);
    WatchedScreen screen;
    screen.takeDamage();
    verdicts.judge(u"Resident memory with 10,000 words"_s, program.residentMebibytes(), 70, "MiB");
    verdicts.judge(u"Paused"_s, shareOfACore(program), 0.3, "% of a core");
    verdicts.judge(u"Paused: frames painted in %1 s"_s.arg(watchedSeconds), screen.takeDamage(), 0,
                   "");
}

/// What a prompter that scrolls at medium rate and speed 2 takes.
struct Scrolling {
    double shareOfACore;
    double mebibytes;
};

/// `size` are members of the JSON object of the settings.
Scrolling scrolling(qsizetype words, const QByteArray& size = {}, double scale = 1) {
    const PrompterHome home(
        words, R"("autoScrollEnabled": true, "scrollSpeed": 2.0, "scrollRate": "medium")" + size,
        scale);
    const RunningProgram program(home);
    QThread::msleep(settleMs);
    WatchedScreen screen;
    screen.takeDamage();
    const double share = shareOfACore(program);
    if (screen.takeDamage() < watchedSeconds) qFatal("The text does not scroll");
    return {share, program.residentMebibytes()};
}

void measureScrolling(qsizetype words, Verdicts& verdicts) {
    verdicts.judge(u"Scrolling %1 words, medium rate, speed 2"_s.arg(
                       QLocale(QLocale::English).toString(words)),
                   scrolling(words).shareOfACore, 1.3, "% of a core");
}

void measureLargeWindows(Verdicts& verdicts) {
    const QByteArray large = R"(, "width": 800, "height": 800)";
    verdicts.judge(u"The same with 10,000 words, 800 × 800 points"_s,
                   scrolling(10'000, large).shareOfACore, 3, "% of a core");
    const Scrolling dense = scrolling(10'000, large, 2);
    verdicts.judge(u"The same with 10,000 words, 800 × 800 points at scale 2"_s, dense.shareOfACore,
                   9, "% of a core");
    verdicts.judge(u"Resident memory of that"_s, dense.mebibytes, 70, "MiB");
}

void measureCommands(Verdicts& verdicts) {
    const PrompterHome home(1'000, "\"autoScrollEnabled\": false");
    const RunningProgram program(home);
    QThread::msleep(settleMs);
    const auto time = [&home](const QStringList& arguments) {
        return warmMilliseconds([&] { return runToEnd(RunningProgram::path(), arguments, home); });
    };
    verdicts.judge(u"`ctl status` from start to end, warm: median"_s, time({u"ctl"_s, u"status"_s}),
                   30, "ms");
    verdicts.judge(u"`render --format json` of 1,000 words from start to end, warm: median"_s,
                   time({u"render"_s, home.script(), u"--format"_s, u"json"_s}), 30, "ms");
}

/// The plug-in sends notes whose text is in view and out of view by turns, a little later after the
/// last look at its file each time.
void measureNotes(Verdicts& verdicts) {
    const PrompterHome home(
        0, R"("activeSourceType": "obsidian", "enabledSourceTypes": ["obsidian"])");
    const RunningProgram program(home);
    QThread::msleep(settleMs);
    const WatchedScreen screen;
    double slowest = 0;
    for (unsigned long turn = 0; turn < 11; ++turn) {
        const bool inView = turn % 2 == 1;
        const QString note = u"\n"_s.repeated(inView ? 0 : 100) + u"Some text.\n"_s.repeated(10);
        QThread::msleep(turn * 100);
        QElapsedTimer clock;
        clock.start();
        runToEnd(u"node"_s, {QStringLiteral(TESSALINE_SEND_NOTE), u"talk.md"_s, note}, home);
        awaitText(screen, inView, clock);
        slowest = std::max(slowest, milliseconds(clock));
    }
    verdicts.judge(u"A note sent by the Obsidian plug-in, until it is on screen: slowest"_s,
                   slowest, 1200, "ms");
}

} // namespace

/// Measures the whole program, whose executable is beside this one, on the display that DISPLAY
/// names. Exits with 1 when a figure falls short.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    Verdicts verdicts;
    measureStart(verdicts);
    measurePause(verdicts);
    measureScrolling(1'000, verdicts);
    measureScrolling(100'000, verdicts);
    measureLargeWindows(verdicts);
    measureCommands(verdicts);
    measureNotes(verdicts);
    return verdicts.exitStatus();
}

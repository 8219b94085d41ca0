#include "SampleTalk.h"
#include "Verdicts.h"
#include "WatchedScreen.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <vector>

namespace {

using namespace Qt::Literals::StringLiterals;
using tessaline::Verdicts;
using tessaline::WatchedScreen;

constexpr int settleMs = 3000;

/// A home folder in which the prompter finds a script and settings.
class Home {
public:
    Home(qsizetype words, bool autoScroll) {
        const QString folder = path.filePath(u"Library/Application Support/Tessaline"_s);
        QDir().mkpath(folder);
        write(folder + u"/clipboard-content.md"_s, tessaline::SampleTalk().write(words).toUtf8());
        write(
            folder + u"/config.json"_s,
            u"{\"hasCompletedOnboarding\": true, \"scrollSpeed\": 2.0, \"scrollRate\": \"medium\", "
            "\"autoScrollEnabled\": %1}"_s.arg(autoScroll ? u"true"_s : u"false"_s)
                .toUtf8());
    }

    QString folder() const { return path.path(); }

private:
    static void write(const QString& file, const QByteArray& bytes) {
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size())
            qFatal("Cannot write %s", qPrintable(file));
    }

    QTemporaryDir path;
};

/// The program under measurement, running.
class Program {
public:
    Program(const QString& binary, const Home& home) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.folder());
        environment.insert(u"XDG_RUNTIME_DIR"_s, home.folder());
        environment.insert(u"DO_NOT_TRACK"_s, u"1"_s);
        environment.insert(u"QT_LOGGING_RULES"_s, u"*.info=false"_s);
        process.setProcessEnvironment(environment);
        process.start(binary, QStringList());
    }

    ~Program() {
        process.terminate();
        if (!process.waitForFinished(5000)) process.kill();
        process.waitForFinished();
    }

    /// Seconds of processor time used so far.
    double processorSeconds() const {
        const QList<QByteArray> fields = procFile(u"stat"_s).split(')').last().split(' ');
        return (fields[12].toDouble() + fields[13].toDouble()) / double(sysconf(_SC_CLK_TCK));
    }

    /// Resident memory in MiB.
    double residentMebibytes() const {
        for (const QByteArray& line : procFile(u"status"_s).split('\n')) {
            if (line.startsWith("VmRSS:")) return line.simplified().split(' ')[1].toDouble() / 1024;
        }
        return 0;
    }

private:
    QByteArray procFile(const QString& name) const {
        QFile file(u"/proc/%1/%2"_s.arg(process.processId()).arg(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QProcess process;
};

double shareOfACore(const Program& program, int seconds) {
    QElapsedTimer clock;
    clock.start();
    const double before = program.processorSeconds();
    QThread::sleep(static_cast<unsigned long>(seconds));
    return (program.processorSeconds() - before) / (double(clock.elapsed()) / 1000) * 100;
}

void measureScrolling(const QString& binary, qsizetype words, Verdicts& verdicts) {
    const Home home(words, true);
    const Program program(binary, home);
    QThread::msleep(settleMs);
    WatchedScreen screen;
    screen.takeDamage();
    const double share = shareOfACore(program, 20);
    const auto what = u"Scrolling %1 words: processor"_s.arg(words);
    verdicts.judge(what, share, 3.0, "% of a core");
    std::printf("    with %d pictures changed in these 20 s\n", screen.takeDamage());
}

void measurePause(const QString& binary, Verdicts& verdicts) {
    const Home home(10'000, false);
    const Program program(binary, home);
    QThread::msleep(settleMs);
    WatchedScreen screen;
    screen.takeDamage();
    verdicts.judge(u"Paused: processor"_s, shareOfACore(program, 20), 0.3, "% of a core");
    verdicts.judge(u"Paused: frames painted in 20 s"_s, screen.takeDamage(), 0, "");
    verdicts.judge(u"Resident memory with 10,000 words"_s, program.residentMebibytes(), 70, "MiB");
}

void measureStart(const QString& binary, Verdicts& verdicts) {
    const Home home(10'000, false);
    std::vector<double> times;
    for (int run = 0; run < 11; ++run) {
        const WatchedScreen screen;
        QElapsedTimer clock;
        clock.start();
        const Program program(binary, home);
        while (!screen.showsText() && clock.elapsed() < 10'000)
            QThread::usleep(500);
        if (run > 0) times.push_back(double(clock.nsecsElapsed()) / 1e6); // the first warms up
    }
    std::sort(times.begin(), times.end());
    verdicts.judge(u"Start to the first painted frame, warm (median)"_s, times[times.size() / 2],
                   250, "ms");
}

} // namespace

/// Measures the whole program on the display that DISPLAY names: bench_program BINARY.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fprintf(stderr, "usage: bench_program BINARY\n");
        return 2;
    }
    Verdicts verdicts;
    measureStart(arguments[1], verdicts);
    measurePause(arguments[1], verdicts);
    measureScrolling(arguments[1], 1'000, verdicts);
    measureScrolling(arguments[1], 100'000, verdicts);
    return verdicts.exitStatus();
}

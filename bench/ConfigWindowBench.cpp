#include "SampleTalk.h"
#include "Samples.h"
#include "Verdicts.h"

#include "prompter/PrompterWindow.h"
#include "settings/ReadingSettings.h"
#include "sources/obsidian/InstalledObsidian.h"
#include "support/FakeApplicationLookup.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeFolderChooser.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeWindowTraits.h"
#include "support/TestEnvironment.h"
#include "ui/ConfigWindow.h"
#include "ui/WindowStage.h"
#include "ui/controls/PointSlider.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace tessaline;

constexpr double frameMilliseconds = 1000.0 / 60.0;
constexpr int steps = 200;

/// What a step of a slider takes, in milliseconds.
struct StepTime {
    double byTheClock = 0;   ///< median, with the waiting for the disk, and for other programs
    double ofThisThread = 0; ///< 95th percentile
};

/// A prompter with a long script, and the settings window that moves it.
class Desk : private WindowStage {
public:
    explicit Desk(qsizetype words) {
        prompter.show();
        prompter.updateText(SampleTalk().write(words));
        settle();
        window.onSettingsChanged = [this] {
            prompter.updateFrame();
            prompter.rerender();
            prompter.updateScrollParameters();
        };
        window.show();
        QCoreApplication::processEvents();
    }

    /// Times each step of the slider up to the repainted windows, saving included.
    StepTime drag(const QString& name, double from, double by) {
        auto& slider = *window.findChild<PointSlider*>(name);
        std::vector<double> byTheClock;
        std::vector<double> ofThisThread;
        for (int i = 0; i < steps; ++i) {
            QElapsedTimer clock;
            clock.start();
            const double begin = threadMilliseconds();
            slider.moveTo(from + by * (i % (steps / 2)));
            settle();
            prompter.repaint();
            window.repaint();
            byTheClock.push_back(double(clock.nsecsElapsed()) / 1e6);
            ofThisThread.push_back(threadMilliseconds() - begin);
            QCoreApplication::processEvents();
        }
        return {median(byTheClock), percentile(ofThisThread, 95)};
    }

private:
    void settle() {
        renderTasks.runAll();
        mainQueue.runAll();
    }

    ReadingSettings readingSettings{folder.filePath(u"reading.json"_s)};
    PrompterWindow prompter{settings, readingSettings, platform};
    ConfigWindow window{settings, nullptr, platform, services};
};

/// A settings window that looks every 2 seconds after the plug-in in one of many vaults.
class Watch : private WindowStage {
public:
    explicit Watch(int vaults) {
        const QString registry = folder.filePath(u".config/obsidian"_s);
        QDir().mkpath(registry);
        QFile file(registry + u"/obsidian.json"_s);
        if (!file.open(QIODevice::WriteOnly)) qFatal("No registry can be written.");
        file.write(registryOf(vaults));
        file.close();
        settings.setSourceEnabled(SourceType::obsidian, true);
        window.show();
        window.startPeriodicRefresh();
        QCoreApplication::processEvents();
    }

    /// What a look takes of the main thread and of the background, the greatest of many, in
    /// milliseconds of processor time.
    std::pair<double, double> look() {
        double ofMainThread = 0;
        double ofBackground = 0;
        for (int i = 0; i < steps; ++i) {
            const double begin = threadMilliseconds();
            timers.advance(2);
            const double asked = threadMilliseconds();
            queryTasks.runAll();
            const double found = threadMilliseconds();
            mainQueue.runAll();
            QCoreApplication::processEvents();
            ofMainThread = std::max(ofMainThread, asked - begin + threadMilliseconds() - found);
            ofBackground = std::max(ofBackground, found - asked);
        }
        return {ofMainThread, ofBackground};
    }

private:
    static QByteArray registryOf(int vaults) {
        QJsonObject entries;
        for (int number = 0; number < vaults; ++number)
            entries.insert(
                u"%1"_s.arg(number, 16, 16, QChar(u'0')),
                QJsonObject{{u"path"_s, u"/home/ann/Documents/Vaults/Number %1"_s.arg(number)},
                            {u"ts"_s, 1700000000000.0 + number}});
        return QJsonDocument(QJsonObject{{u"vaults"_s, entries}}).toJson(QJsonDocument::Compact);
    }

    InstalledObsidian installed{folder.path(), VaultRegistry(folder.path()), platform};
    ConfigWindow window{settings, nullptr, platform, Services{recorder, installed, notes}};
};

} // namespace

/// Measures how fast the prompter follows a slider of the settings window with a script of 10,000
/// words, and what the window costs while it is open.
int main(int argc, char** argv) {
    const TestEnvironment environment;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    constexpr int vaults = 4000;
    const auto [ofMainThread, ofBackground] = Watch(vaults).look();
    std::printf("A look after the plug-in, %d vaults: %.2f ms of the main thread's, %.1f ms of the "
                "background's\n",
                vaults, ofMainThread, ofBackground);

    Desk desk(10'000);
    StepTime slowest;
    const auto drag = [&](const char* name, double from, double by) {
        const StepTime time = desk.drag(QString::fromLatin1(name), from, by);
        std::printf("%-14s %5.1f ms by the clock, %5.1f ms of processor time\n", name,
                    time.byTheClock, time.ofThisThread);
        slowest = {std::max(slowest.byTheClock, time.byTheClock),
                   std::max(slowest.ofThisThread, time.ofThisThread)};
    };
    drag("widthSlider", 400, 1.5);
    drag("heightSlider", 200, 2.0);
    drag("fontSlider", 12, 0.1);
    drag("xOffsetSlider", 21, 0.5);

    Verdicts verdicts;
    const QString what = u"A step of the slowest slider, 10,000 words: "_s;
    verdicts.judge(what + u"95th percentile, processor time"_s, slowest.ofThisThread,
                   frameMilliseconds, "ms");
    verdicts.judge(what + u"median by the clock, with the disk"_s, slowest.byTheClock,
                   frameMilliseconds, "ms");
    verdicts.judge(u"A look after the plug-in, 4,000 vaults: greatest, main thread"_s, ofMainThread,
                   1.0, "ms");
    return verdicts.exitStatus();
}

#include "SampleTalk.h"
#include "Verdicts.h"

#include "prompter/PrompterWindow.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeWindowTraits.h"
#include "support/TestEnvironment.h"
#include "ui/ConfigWindow.h"
#include "ui/WindowStage.h"
#include "ui/controls/PointSlider.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <ctime>
#include <vector>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace tessaline;

constexpr double frameMilliseconds = 1000.0 / 60.0;
constexpr int steps = 200;

double threadMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

/// What the steps of a slider took, in milliseconds, in rising order.
struct Times {
    std::vector<double> byTheClock; ///< with the waiting for the disk, and for other programs
    std::vector<double> ofThisThread;
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
    Times drag(const QString& name, double from, double by) {
        auto& slider = *window.findChild<PointSlider*>(name);
        Times times;
        for (int i = 0; i < steps; ++i) {
            QElapsedTimer clock;
            clock.start();
            const double begin = threadMilliseconds();
            slider.moveTo(from + by * (i % (steps / 2)));
            settle();
            prompter.repaint();
            window.repaint();
            times.byTheClock.push_back(double(clock.nsecsElapsed()) / 1e6);
            times.ofThisThread.push_back(threadMilliseconds() - begin);
            QCoreApplication::processEvents();
        }
        std::sort(times.byTheClock.begin(), times.byTheClock.end());
        std::sort(times.ofThisThread.begin(), times.ofThisThread.end());
        return times;
    }

private:
    void settle() {
        tasks.runAll();
        mainQueue.runAll();
    }

    FakeTaskRunner tasks;
    FakeDisplayLinkMaker links;
    FakeWindowTraits traits;
    PrompterWindow prompter{settings,
                            PrompterPorts{mainQueue, tasks, timers, links, screens, traits}};
    ConfigWindow window{settings, nullptr, ports};
};

void measure(Desk& desk, const QString& slider, double from, double by, Verdicts& verdicts) {
    const Times times = desk.drag(slider, from, by);
    verdicts.judge(slider + u", median by the clock"_s, times.byTheClock[steps / 2],
                   frameMilliseconds, "ms");
    verdicts.judge(slider + u", 95th percentile of the thread"_s,
                   times.ofThisThread[steps * 95 / 100], frameMilliseconds, "ms");
}

} // namespace

/// Measures how fast the prompter follows a slider of the settings window with a script of 10,000
/// words.
int main(int argc, char** argv) {
    const TestEnvironment environment;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Verdicts verdicts;
    Desk desk(10'000);
    measure(desk, u"widthSlider"_s, 400, 1.5, verdicts);
    measure(desk, u"heightSlider"_s, 200, 2.0, verdicts);
    measure(desk, u"fontSlider"_s, 12, 0.1, verdicts);
    measure(desk, u"xOffsetSlider"_s, 21, 0.5, verdicts);
    return verdicts.exitStatus();
}

#include "InputWindow.h"
#include "ProbeReport.h"

#include "analytics/UsageRecorder.h"
#include "app/shortcuts/Shortcuts.h"
#include "platform/AccessibilityTrust.h"
#include "platform/Platform.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11Modifiers.h"
#include "platform/linux/x11/X11PassiveGrab.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <chrono>
#include <optional>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

class SilentRecorder final : public UsageRecorder {
public:
    void record(const AnalyticsEvent& /*event*/) override {}
    void trackAppLaunch() override {}
    void trackAppTerminate() override {}
    void trackEnvironmentSnapshot(const AppSettings& /*settings*/) override {}
};

/// The shortcuts as the program has them, but their actions are lines on standard output.
class Prompter {
public:
    Prompter()
        : shortcuts(*platform, recorder,
                    {.performScroll =
                         [](double y) {
                             report(u"scroll"_s, {{u"delta"_s, y}});
                         },
                     .toggleScroll = [] { report(u"toggle"_s, {}); },
                     .paste = [] { report(u"paste"_s, {}); }}) {
        shortcuts.setupShortcuts();
        report(u"trust"_s, {{u"trusted"_s, platform->trust->isTrusted()}});
    }

private:
    const std::unique_ptr<Platform> platform = makePlatform();
    SilentRecorder recorder;
    Shortcuts shortcuts;
};

/// Holds Control with a button, as another program might. False when it cannot.
bool hold(const X11Connection& connection, std::uint32_t button) {
    const X11PassiveGrab grab{
        .detail = button,
        .modifiers = modifierCombinations(X11Modifier::control, 0xff & ~X11Modifier::control)};
    return grab.take(connection).empty();
}

/// Holds the shortcut on this key as programs of today do: for the common lock keys on and off.
bool holdChord(const X11Connection& connection, std::uint32_t key) {
    const X11PassiveGrab grab{.kind = X11PassiveGrab::Kind::key,
                              .detail = key,
                              .modifiers = modifierCombinations(
                                  X11Modifier::control | X11Modifier::shift | X11Modifier::super,
                                  X11Modifier::capsLock | X11Modifier::numLock)};
    return grab.take(connection).empty();
}

} // namespace
} // namespace tessaline

/// Roles: "tap" sets the shortcuts up; "hold" holds a button together with Control; "hold-chord"
/// the shortcut on a key; "watch" does none of it. Each shows a window if asked to.
int main(int argc, char** argv) {
    using namespace tessaline;
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    const QCommandLineOption window(u"window"_s, u"Show a window at x,y,width,height"_s, u"area"_s);
    const QCommandLineOption field(u"field"_s, u"Put a text field into the window"_s);
    const QCommandLineOption busy(u"busy"_s, u"Block the main thread this long"_s, u"seconds"_s);
    parser.addOptions({window, field, busy});
    parser.addPositionalArgument(u"role"_s, u"tap, hold, hold-chord or watch"_s);
    parser.addPositionalArgument(u"button"_s, u"what to hold"_s);
    parser.process(application);
    const QString role = parser.positionalArguments().value(0);

    std::optional<Prompter> prompter;
    if (role == "tap"_L1) prompter.emplace();
    const auto connection = role.startsWith("hold"_L1) ? X11Connection::open() : nullptr;
    const std::uint32_t detail = parser.positionalArguments().value(1).toUInt();
    if (role == "hold"_L1 && !hold(*connection, detail)) return 1;
    if (role == "hold-chord"_L1 && !holdChord(*connection, detail)) return 1;

    InputWindow shown(parser.isSet(field));
    if (parser.isSet(window)) {
        const QStringList area = parser.value(window).split(u","_s);
        shown.setWindowTitle(role);
        shown.setGeometry(area.value(0).toInt(), area.value(1).toInt(), area.value(2).toInt(),
                          area.value(3).toInt());
        shown.show();
    }
    QTimer::singleShot(0, [&] {
        report(u"ready"_s, {});
        if (!parser.isSet(busy)) return;
        std::this_thread::sleep_for(std::chrono::seconds(parser.value(busy).toInt()));
        report(u"idle again"_s, {});
    });
    return QApplication::exec();
}

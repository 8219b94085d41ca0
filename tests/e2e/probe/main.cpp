#include "DragSource.h"
#include "ProbeReport.h"
#include "ProbeWindow.h"

#include "platform/Platform.h"
#include "platform/Screens.h"
#include "platform/WindowTraits.h"
#include "platform/qt/FocusOnClick.h"
#include "screens/ScreenManager.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QJsonArray>
#include <QMimeData>

#include <memory>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

QJsonArray toJson(const Rect& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}

QJsonObject toJson(const Screen& screen) {
    return {{u"id"_s, static_cast<qint64>(screen.id)},
            {u"name"_s, screen.name},
            {u"frame"_s, toJson(screen.frame)},
            {u"visibleFrame"_s, toJson(screen.visibleFrame)},
            {u"builtIn"_s, screen.builtIn},
            {u"refreshRate"_s, screen.refreshRate}};
}

void reportScreens(const Screens& screens, const ScreenManager& manager) {
    QJsonArray all;
    for (const Screen& screen : screens.all())
        all.append(toJson(screen));
    report(u"screens"_s, {{u"all"_s, all}, {u"preferred"_s, toJson(manager.preferredScreen())}});
}

/// What can be dragged from the window: a text, or the things that addresses name.
std::unique_ptr<QMimeData> dragged(const QString& text, const QStringList& addresses) {
    auto data = std::make_unique<QMimeData>();
    if (!text.isEmpty()) data->setText(text);
    if (!addresses.isEmpty())
        data->setData(u"text/uri-list"_s, addresses.join("\r\n"_L1).toUtf8() + "\r\n");
    return data;
}

/// Like the prompter: at the very top, over everything.
void showFloating(ProbeWindow& window, WindowTraits& traits) {
    window.setWindowFlags(Qt::FramelessWindowHint | traits.creationFlags());
    window.setGeometry(400, 0, 300, 120);
    report(u"capture"_s, {{u"excluded"_s, traits.excludeFromCapture(window.winId())}});
    new FocusOnClick(*window.windowHandle(), traits);
    window.onEscape = [&] { traits.giveKeyboardBack(window.winId()); };
    window.show();
    traits.adopt(window);
}

} // namespace
} // namespace tessaline

/// Shows one window whose title, colour and kind the command line gives, and reports what happens
/// to it and to the screens.
int main(int argc, char** argv) {
    using namespace tessaline;
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addPositionalArgument(u"kind"_s, u"floating, normal or fullscreen"_s);
    parser.addPositionalArgument(u"color"_s, u"the colour that fills the window"_s);
    const QCommandLineOption text(u"drag-text"_s, u"a text to be dragged from it"_s, u"text"_s);
    const QCommandLineOption address(u"drag"_s, u"an address to be dragged"_s, u"uri"_s);
    parser.addOptions({text, address});
    parser.process(application);
    const QString kind = parser.positionalArguments().value(0);

    const auto platform = makePlatform();
    const Screens& screens = *platform->screens;
    ScreenManager manager(screens, *platform->notifications);
    manager.onScreenChange = [&] { reportScreens(screens, manager); };
    reportScreens(screens, manager);

    ProbeWindow window{QColor(parser.positionalArguments().value(1))};
    window.setWindowTitle(kind);
    std::optional<DragSource> source;
    if (parser.isSet(text) || parser.isSet(address)) {
        source.emplace(window, [&] { return dragged(parser.value(text), parser.values(address)); });
    }
    if (kind == "floating"_L1) {
        showFloating(window, *platform->windowTraits);
    } else if (kind == "fullscreen"_L1) {
        window.showFullScreen();
    } else {
        window.setGeometry(100, 400, 300, 120);
        window.show();
    }
    return QApplication::exec();
}

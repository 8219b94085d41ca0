#include "platform/SystemAdapters.h"

#include "platform/linux/ClockDisplayLinkMaker.h"
#include "platform/linux/DisplayChoice.h"
#include "platform/linux/x11/ConnectorIdentity.h"
#include "platform/linux/x11/X11DarkTitleBars.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Qt ends the program with a crash where it finds no server; we would rather say so.
bool xServerAnswers() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace

std::optional<QString> prepareDisplay() {
    const auto choice =
        DisplayChoice::from([](const char* name) { return qEnvironmentVariable(name); });
    if (choice.problem) return choice.problem;
    if (choice.platform == u"xcb"_s && !xServerAnswers())
        return u"the display %1 does not answer"_s.arg(qEnvironmentVariable("DISPLAY"));
    if (choice.platform) qputenv("QT_QPA_PLATFORM", choice.platform->toLatin1());
    return std::nullopt;
}

bool isInASession() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

std::unique_ptr<DisplayLinkMaker> makeDisplayLinkMaker() {
    return std::make_unique<ClockDisplayLinkMaker>();
}

ScreenIdentity identifyScreen(const QScreen& screen) {
    return connectorIdentity(screen);
}

bool showNativeDarkAppearance() {
    // Without a server Qt's offscreen platform has the interface all the same.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 && x11->connection()) new X11DarkTitleBars(x11->connection());
    return false;
}

} // namespace tessaline

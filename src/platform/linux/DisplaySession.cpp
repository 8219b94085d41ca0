#include "platform/DisplaySession.h"

#include <xcb/xcb.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isSet(const char* variable) {
    return !qEnvironmentVariableIsEmpty(variable);
}

/// Qt ends the program with a crash where it finds no server; we would rather say so.
bool xServerAnswers() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace

std::optional<QString> prepareDisplay() {
    if (isSet("QT_QPA_PLATFORM")) return std::nullopt; // the user's choice
    // The X server is preferred to Wayland, which does not let a window choose its place.
    if (isSet("DISPLAY")) {
        if (!xServerAnswers())
            return u"the display %1 does not answer"_s.arg(qEnvironmentVariable("DISPLAY"));
        qputenv("QT_QPA_PLATFORM", "xcb");
    } else if (isSet("WAYLAND_DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "wayland");
    } else {
        return u"there is no display to show the prompter on (DISPLAY is not set)"_s;
    }
    return std::nullopt;
}

QString displayOfSession(const SessionVariable& variable) {
    const QString display = variable("DISPLAY");
    if (display.isEmpty()) return variable("WAYLAND_DISPLAY");
    // Screens of one X display share a session.
    const auto dot = display.indexOf(u'.', display.lastIndexOf(u':'));
    return dot > 0 ? display.first(dot) : display;
}

std::optional<QString> missingSession() {
    if (isSet("DISPLAY") || isSet("WAYLAND_DISPLAY")) return std::nullopt;
    return u"neither DISPLAY nor WAYLAND_DISPLAY is set"_s;
}

} // namespace tessaline

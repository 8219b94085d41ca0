#include "platform/DisplaySession.h"

#include "platform/linux/DisplayChoice.h"
#include "platform/linux/wayland/LayerShellOffer.h"

#include <xcb/xcb.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isSet(const char* variable) {
    return !qEnvironmentVariableIsEmpty(variable);
}

bool xServerAnswers() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace

std::optional<QString> prepareDisplay() {
    const auto variable = [](const char* name) { return qEnvironmentVariable(name); };
    const DisplayChoice choice = chooseDisplay(variable, {xServerAnswers, compositorOffersLayers});
    if (!choice.problem.isEmpty()) return choice.problem;
    if (choice.hangsOnLayers) leaveRolesToUs();
    if (!choice.qtPlatform.isEmpty()) qputenv("QT_QPA_PLATFORM", choice.qtPlatform.toLatin1());
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

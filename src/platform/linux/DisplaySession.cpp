#include "platform/DisplaySession.h"

#include "platform/linux/wayland/LayerShellOffer.h"

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

std::optional<QString> chooseWayland() {
    const auto offersLayers = compositorOffersLayers();
    if (!offersLayers) {
        return isSet("WAYLAND_DISPLAY") ? u"the Wayland display %1 does not answer"_s.arg(
                                              qEnvironmentVariable("WAYLAND_DISPLAY"))
                                        : u"there is no Wayland display to show the prompter on"_s;
    }
    if (*offersLayers) leaveRolesToUs();
    qputenv("QT_QPA_PLATFORM", "wayland");
    return std::nullopt;
}

std::optional<QString> chooseX11() {
    if (!isSet("DISPLAY")) return u"there is no X display (DISPLAY is not set)"_s;
    if (!xServerAnswers())
        return u"the display %1 does not answer"_s.arg(qEnvironmentVariable("DISPLAY"));
    qputenv("QT_QPA_PLATFORM", "xcb");
    return std::nullopt;
}

/// A compositor that has no layers lets no window choose its place, unlike its X server.
std::optional<QString> chooseByWhatIsThere() {
    if (isSet("QT_QPA_PLATFORM")) { // the user's choice
        const bool isWayland = qgetenv("QT_QPA_PLATFORM").startsWith("wayland");
        if (isWayland && compositorOffersLayers().value_or(false)) leaveRolesToUs();
        return std::nullopt;
    }
    if (isSet("WAYLAND_DISPLAY") && compositorOffersLayers().value_or(false))
        return chooseWayland();
    if (isSet("DISPLAY")) return chooseX11();
    if (isSet("WAYLAND_DISPLAY")) return chooseWayland();
    return u"there is no display to show the prompter on (DISPLAY is not set)"_s;
}

} // namespace

std::optional<QString> prepareDisplay() {
    const QString choice = qEnvironmentVariable("TESSALINE_PLATFORM", u"auto"_s);
    if (choice == u"wayland") return chooseWayland();
    if (choice == u"x11") return chooseX11();
    if (choice != u"auto" && !choice.isEmpty())
        return u"TESSALINE_PLATFORM is neither auto nor wayland nor x11: %1"_s.arg(choice);
    return chooseByWhatIsThere();
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

#include "platform/linux/DisplayChoice.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class Chooser {
public:
    Chooser(const SessionVariable& sessionVariable, const DisplayServerAnswers& serverAnswers)
        : variable(sessionVariable), answers(serverAnswers) {}

    DisplayChoice choose() const {
        const QString wish = variable("TESSALINE_PLATFORM");
        if (wish == u"wayland") return wayland(answers.wayland());
        if (wish == u"x11") return x11();
        if (wish.isEmpty() || wish == u"auto") return byWhatIsThere();
        return {.problem =
                    u"TESSALINE_PLATFORM is neither auto nor wayland nor x11: %1"_s.arg(wish)};
    }

private:
    bool isSet(const char* name) const { return !variable(name).isEmpty(); }

    /// A compositor without layers lets no window choose its place, unlike its X server.
    DisplayChoice byWhatIsThere() const {
        if (isSet("QT_QPA_PLATFORM")) return asQtIsTold();
        if (isSet("WAYLAND_DISPLAY")) {
            const auto layers = answers.wayland();
            if (layers.value_or(false) || !isSet("DISPLAY")) return wayland(layers);
        }
        if (isSet("DISPLAY")) return x11();
        return {.problem = u"there is no display to show the prompter on (DISPLAY is not set)"_s};
    }

    DisplayChoice asQtIsTold() const {
        const bool isWayland = variable("QT_QPA_PLATFORM").startsWith("wayland"_L1);
        return {.hangsOnLayers = isWayland && answers.wayland().value_or(false)};
    }

    DisplayChoice wayland(std::optional<bool> layers) const {
        if (layers) return {.qtPlatform = u"wayland"_s, .hangsOnLayers = *layers};
        if (!isSet("WAYLAND_DISPLAY"))
            return {.problem = u"there is no Wayland display (WAYLAND_DISPLAY is not set)"_s};
        return {.problem =
                    u"the Wayland display %1 does not answer"_s.arg(variable("WAYLAND_DISPLAY"))};
    }

    DisplayChoice x11() const {
        if (!isSet("DISPLAY")) return {.problem = u"there is no X display (DISPLAY is not set)"_s};
        // Qt ends the program with a crash where it finds no server; we would rather say so.
        if (!answers.x11())
            return {.problem = u"the display %1 does not answer"_s.arg(variable("DISPLAY"))};
        return {.qtPlatform = u"xcb"_s};
    }

    const SessionVariable& variable;
    const DisplayServerAnswers& answers;
};

} // namespace

DisplayChoice chooseDisplay(const SessionVariable& variable, const DisplayServerAnswers& answers) {
    return Chooser(variable, answers).choose();
}

} // namespace tessaline

#include "platform/linux/desktop/portal/PortalReport.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

using State = PortalShortcuts::State;

QString noteOf(State state, const QString& toggleKey) {
    switch (state) {
    case State::looking:
        return {};
    case State::asking:
        return u"The desktop asks you in a window of its own."_s;
    case State::granted:
        return toggleKey.isEmpty()
                   ? u"Give “Start or stop the text” a key in the desktop's keyboard settings."_s
                   : u"%1 starts and stops the text."_s.arg(toggleKey);
    case State::ungranted:
        return u"The desktop can give Tessaline keys that work in any application."_s;
    case State::refused:
        return u"The desktop gave no key. Ask it again, or bind one to “tessaline ctl toggle” in its keyboard settings."_s;
    case State::absent:
        break;
    }
    return u"This desktop gives programs no keys: in its keyboard settings, bind one to “tessaline ctl toggle”."_s;
}

} // namespace

AccessibilityTrust::Report portalReport(State state, const QString& toggleKey, GestureReach reach) {
    const bool seesXWindows = reach == GestureReach::xWindows;
    const bool isWhole = state == State::granted && !toggleKey.isEmpty();
    QString missing = seesXWindows ? u"Over X11 windows only"_s : u"Not available"_s;
    return {.isWhole = isWhole,
            .canBeGranted = state == State::ungranted || state == State::refused,
            .state = isWhole ? u"Available"_s : std::move(missing),
            .note = noteOf(state, toggleKey),
            .reachOfGestures =
                seesXWindows ? u"Works over X11 windows:"_s : u"Works over the prompter:"_s,
            .gesturesAreSeen = seesXWindows};
}

} // namespace tessaline

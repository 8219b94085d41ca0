#include "platform/linux/desktop/portal/PortalShortcuts.h"

#include "platform/PlatformLog.h"
#include "platform/UserDefaults.h"
#include "platform/linux/desktop/portal/OfferedShortcuts.h"

#include <algorithm>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QString rememberedUnder() {
    return u"GlobalShortcutsGranted"_s;
}

QString yes() {
    return u"yes"_s;
}

std::optional<QString> toggleAmong(const std::vector<ShortcutsPortal::Bound>& bound) {
    const auto found =
        std::ranges::find(bound, OfferedShortcuts::toggle(), &ShortcutsPortal::Bound::id);
    if (found == bound.end()) return std::nullopt;
    return found->trigger;
}

} // namespace

PortalShortcuts::PortalShortcuts(std::unique_ptr<ShortcutsPortal> desktopPortal,
                                 UserDefaults& userDefaults)
    : portal(std::move(desktopPortal)), defaults(userDefaults) {
    portal->listen({.pressed = [this](const QString& id) { pressed(id); },
                    .changed = [this](const std::vector<Bound>& bound) { changed(bound); },
                    .closed = [this] { lose(State::ungranted); },
                    .gone = [this] { lose(State::absent); },
                    .came = [this] { look(false); }});
    look(false);
}

QString PortalShortcuts::toggleKey() const {
    return toggle.value_or(QString());
}

void PortalShortcuts::ask() {
    if (current == State::asking) return;
    look(true);
}

void PortalShortcuts::look(bool asksThen) {
    enter(asksThen ? State::asking : State::looking);
    portal->open([this, asksThen](const Answer& answer) { opened(answer, asksThen); });
}

void PortalShortcuts::opened(const Answer& answer, bool asksThen) {
    toggle = toggleAmong(answer.bound);
    if (answer.outcome == Answer::Outcome::unavailable) return enter(State::absent);
    if (answer.outcome == Answer::Outcome::refused) return enter(State::refused);
    if (toggle) {
        remember(true);
        return enter(State::granted);
    }
    asksThen || wasGrantedBefore() ? bind() : enter(State::ungranted);
}

void PortalShortcuts::bind() {
    enter(State::asking);
    portal->bind(OfferedShortcuts::all(), [this](const Answer& answer) { answered(answer); });
}

void PortalShortcuts::answered(const Answer& answer) {
    toggle = toggleAmong(answer.bound);
    if (answer.outcome == Answer::Outcome::unavailable) return enter(State::absent);
    remember(toggle.has_value());
    enter(toggle ? State::granted : State::refused);
}

void PortalShortcuts::changed(const std::vector<Bound>& bound) {
    toggle = toggleAmong(bound);
    remember(toggle.has_value());
    enter(toggle ? State::granted : State::ungranted);
}

void PortalShortcuts::pressed(const QString& id) const {
    if (id == OfferedShortcuts::toggle()) {
        if (onToggle) onToggle();
    } else if (const auto action = OfferedShortcuts::action(id); action && onAction) {
        onAction(*action);
    }
}

void PortalShortcuts::lose(State state) {
    toggle.reset();
    enter(state);
}

void PortalShortcuts::enter(State state) {
    if (std::exchange(current, state) == state) return;
    if (state == State::absent) {
        qCInfo(inputLog, "This desktop gives programs no keys in other windows: bind keys of its "
                         "own to \"tessaline ctl\".");
    } else if (state == State::refused) {
        qCWarning(inputLog, "The desktop gave no key for other windows.");
    }
}

bool PortalShortcuts::wasGrantedBefore() const {
    return defaults.string(rememberedUnder()) == yes();
}

void PortalShortcuts::remember(bool granted) {
    if (granted != wasGrantedBefore())
        defaults.setString(rememberedUnder(), granted ? yes() : u"no"_s);
}

} // namespace tessaline

#include "platform/linux/desktop/portal/OfferedShortcuts.h"

#include <array>

namespace tessaline::OfferedShortcuts {

using namespace Qt::Literals::StringLiterals;

namespace {

using Action = GlobalKeyMonitor::Action;

struct Offer {
    Action action;
    QStringView id;
    QStringView description;
};

constexpr std::array offers{
    Offer{Action::faster, u"faster", u"Make the text faster"},
    Offer{Action::slower, u"slower", u"Make the text slower"},
    Offer{Action::nextHeading, u"next-heading", u"Go to the next heading"},
    Offer{Action::previousHeading, u"previous-heading", u"Go to the heading before"},
    Offer{Action::showOrHide, u"show-hide", u"Show or hide the prompter"},
};

} // namespace

QString toggle() {
    return u"toggle"_s;
}

std::vector<ShortcutsPortal::Shortcut> all() {
    std::vector<ShortcutsPortal::Shortcut> shortcuts{
        {toggle(), u"Start or stop the text"_s, u"CTRL+SHIFT+LOGO+t"_s}};
    for (const Offer& offer : offers)
        shortcuts.push_back({offer.id.toString(), offer.description.toString(), {}});
    return shortcuts;
}

std::optional<Action> action(const QString& id) {
    for (const Offer& offer : offers)
        if (offer.id == id) return offer.action;
    return std::nullopt;
}

} // namespace tessaline::OfferedShortcuts

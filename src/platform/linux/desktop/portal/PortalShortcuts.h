#pragma once

#include "platform/GlobalKeyMonitor.h"
#include "platform/linux/desktop/portal/ShortcutsPortal.h"

#include <functional>
#include <memory>
#include <optional>

namespace tessaline {

class UserDefaults;

/// The shortcuts that the desktop's portal lists for the program, from the first look on. Without
/// a portal, refused or when the desktop starts anew, it says so and goes on. The user is asked
/// only by `ask`: at a start, only what they agreed to in an earlier one is asked for again, which
/// desktops grant without a word.
class PortalShortcuts {
public:
    enum class State {
        looking,
        absent, ///< the desktop has no such portal now
        ungranted,
        asking,
        refused,
        granted
    };

    /// Looks at once. Borrows the defaults.
    PortalShortcuts(std::unique_ptr<ShortcutsPortal> portal, UserDefaults& defaults);

    State state() const { return current; }

    /// The key that starts and stops the text, in the desktop's words; empty while it has none.
    QString toggleKey() const;

    /// Has the desktop ask the user.
    void ask();

    std::function<void()> onToggle;
    std::function<void(GlobalKeyMonitor::Action)> onAction;

private:
    using Answer = ShortcutsPortal::Answer;
    using Bound = ShortcutsPortal::Bound;

    void look(bool asksThen);
    void opened(const Answer& answer, bool asksThen);
    void bind();
    void answered(const Answer& answer);
    void changed(const std::vector<Bound>& bound);
    void pressed(const QString& id) const;
    void lose(State state);
    void enter(State state);
    bool wasGrantedBefore() const;
    void remember(bool granted);

    std::unique_ptr<ShortcutsPortal> portal;
    UserDefaults& defaults;
    State current = State::looking;
    std::optional<QString> toggle; ///< its key, while it is listed
};

} // namespace tessaline

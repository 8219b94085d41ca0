#include "platform/linux/desktop/portal/PortalShortcuts.h"

#include "FakeShortcutsPortal.h"

#include "support/FakeUserDefaults.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

using Outcome = FakeShortcutsPortal::Outcome;
using State = PortalShortcuts::State;
using Action = GlobalKeyMonitor::Action;

class PortalShortcutsTest : public testing::Test {
protected:
    PortalShortcutsTest() { start(); }

    /// The program, once more.
    void start() {
        auto made = std::make_unique<FakeShortcutsPortal>();
        portal = made.get();
        shortcuts = std::make_unique<PortalShortcuts>(std::move(made), defaults);
    }

    void grant() {
        portal->answer(Outcome::done);
        shortcuts->ask();
        portal->answer(Outcome::done);
        portal->answer(Outcome::done, {{u"toggle"_s, u"Ctrl+T"_s}, {u"faster"_s, {}}});
    }

    FakeUserDefaults defaults;
    FakeShortcutsPortal* portal = nullptr;
    std::unique_ptr<PortalShortcuts> shortcuts;
};

TEST_F(PortalShortcutsTest, LooksWithoutAskingTheUser) {
    EXPECT_EQ(shortcuts->state(), State::looking);
    portal->answer(Outcome::done);
    EXPECT_EQ(shortcuts->state(), State::ungranted);
    EXPECT_EQ(portal->asked, 0);
}

TEST_F(PortalShortcutsTest, AreGrantedWhereThePortalListsTheToggle) {
    portal->answer(Outcome::done, {{u"toggle"_s, u"Super+T"_s}});
    EXPECT_EQ(shortcuts->state(), State::granted);
    EXPECT_EQ(shortcuts->toggleKey(), u"Super+T"_s);
}

TEST_F(PortalShortcutsTest, OtherShortcutsAloneAreNoGrant) {
    portal->answer(Outcome::done, {{u"faster"_s, u"F5"_s}});
    EXPECT_EQ(shortcuts->state(), State::ungranted);
}

TEST_F(PortalShortcutsTest, AskForTheChordAndOfferTheRestWithoutKeys) {
    portal->answer(Outcome::done);
    shortcuts->ask();
    EXPECT_EQ(shortcuts->state(), State::asking);
    portal->answer(Outcome::done);
    ASSERT_EQ(portal->wanted.size(), 6U);
    EXPECT_EQ(portal->wanted[0].id, u"toggle"_s);
    EXPECT_EQ(portal->wanted[0].preferredTrigger, u"CTRL+SHIFT+LOGO+t"_s);
    for (const auto& shortcut : portal->wanted) {
        EXPECT_FALSE(shortcut.description.isEmpty());
        EXPECT_EQ(shortcut.preferredTrigger.isEmpty(), shortcut.id != "toggle"_L1);
    }
}

TEST_F(PortalShortcutsTest, AskOnceWhileTheDesktopAsksTheUser) {
    portal->answer(Outcome::done);
    shortcuts->ask();
    portal->answer(Outcome::done);
    shortcuts->ask();
    EXPECT_EQ(portal->asked, 1);
    EXPECT_EQ(portal->opened, 2);
}

TEST_F(PortalShortcutsTest, CanBeAskedForAgainAfterARefusal) {
    portal->answer(Outcome::done);
    shortcuts->ask();
    portal->answer(Outcome::done);
    portal->answer(Outcome::refused);
    EXPECT_EQ(shortcuts->state(), State::refused);
    shortcuts->ask();
    portal->answer(Outcome::done);
    portal->answer(Outcome::done, {{u"toggle"_s, u"F9"_s}});
    EXPECT_EQ(shortcuts->state(), State::granted);
    EXPECT_EQ(portal->opened, 3) << "a session asks once";
}

TEST_F(PortalShortcutsTest, FollowWhatTheUserChangesInTheDesktopsSettings) {
    grant();
    portal->events.changed({{u"toggle"_s, u"Hyper+Q"_s}});
    EXPECT_EQ(shortcuts->toggleKey(), u"Hyper+Q"_s);
    portal->events.changed({});
    EXPECT_EQ(shortcuts->state(), State::ungranted);
    EXPECT_EQ(shortcuts->toggleKey(), QString());
}

TEST_F(PortalShortcutsTest, TellPressesApart) {
    grant();
    int toggles = 0;
    std::vector<Action> actions;
    portal->events.pressed(u"toggle"_s); // nobody listens
    portal->events.pressed(u"faster"_s);
    shortcuts->onToggle = [&] { ++toggles; };
    shortcuts->onAction = [&](Action action) { actions.push_back(action); };
    for (const auto& id : {u"toggle"_s, u"faster"_s, u"slower"_s, u"next-heading"_s,
                           u"previous-heading"_s, u"show-hide"_s, u"of another version"_s})
        portal->events.pressed(id);
    EXPECT_EQ(toggles, 1);
    EXPECT_EQ(actions, (std::vector{Action::faster, Action::slower, Action::nextHeading,
                                    Action::previousHeading, Action::showOrHide}));
}

TEST_F(PortalShortcutsTest, AskAgainByThemselvesOnlyForWhatTheUserAgreedTo) {
    grant();
    start();
    portal->answer(Outcome::done);
    EXPECT_EQ(portal->asked, 1);
    portal->answer(Outcome::refused);
    EXPECT_EQ(shortcuts->state(), State::refused);
    start();
    portal->answer(Outcome::done);
    EXPECT_EQ(portal->asked, 0);
    EXPECT_EQ(shortcuts->state(), State::ungranted);
}

TEST_F(PortalShortcutsTest, LiveWithoutAPortalUntilThereIsOne) {
    portal->answer(Outcome::unavailable);
    EXPECT_EQ(shortcuts->state(), State::absent);
    portal->events.came();
    EXPECT_EQ(shortcuts->state(), State::looking);
    portal->answer(Outcome::done);
    EXPECT_EQ(shortcuts->state(), State::ungranted);
}

TEST_F(PortalShortcutsTest, ComeBackWithAPortalThatStartsAnew) {
    grant();
    portal->events.gone();
    EXPECT_EQ(shortcuts->state(), State::absent);
    EXPECT_EQ(shortcuts->toggleKey(), QString());
    portal->events.came();
    portal->answer(Outcome::done);
    portal->answer(Outcome::done, {{u"toggle"_s, u"Ctrl+T"_s}});
    EXPECT_EQ(shortcuts->state(), State::granted);
}

TEST_F(PortalShortcutsTest, AreGoneWithASessionThatTheDesktopCloses) {
    grant();
    portal->events.closed();
    EXPECT_EQ(shortcuts->state(), State::ungranted);
}

} // namespace
} // namespace tessaline

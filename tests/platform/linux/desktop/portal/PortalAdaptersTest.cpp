#include "platform/linux/desktop/portal/PortalAccessibilityTrust.h"
#include "platform/linux/desktop/portal/PortalKeyMonitor.h"

#include "FakeShortcutsPortal.h"

#include "support/FakeAccessibilityTrust.h"
#include "support/FakeGlobalKeyMonitor.h"
#include "support/FakeUserDefaults.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

using Outcome = FakeShortcutsPortal::Outcome;

const GlobalKeyMonitor::Chord chord{.modifiers = Modifier::control, .characters = u"t"_s};

class PortalAdaptersTest : public testing::Test {
protected:
    PortalAdaptersTest() {
        auto madePortal = std::make_unique<FakeShortcutsPortal>();
        portal = madePortal.get();
        shortcuts = std::make_shared<PortalShortcuts>(std::move(madePortal), defaults);
        auto madeTrust = std::make_unique<FakeAccessibilityTrust>();
        serverTrust = madeTrust.get();
        trust = std::make_unique<PortalAccessibilityTrust>(shortcuts, std::move(madeTrust),
                                                           GestureReach::xWindows);
        auto madeMonitor = std::make_unique<FakeGlobalKeyMonitor>();
        serverKeys = madeMonitor.get();
        keys = std::make_unique<PortalKeyMonitor>(shortcuts, std::move(madeMonitor));
    }

    void grant() { portal->answer(Outcome::done, {{u"toggle"_s, u"F9"_s}}); }

    auto listen() {
        return keys->start(chord, [this](const KeyEvent& key) { pressed.push_back(key); });
    }

    FakeUserDefaults defaults;
    FakeShortcutsPortal* portal = nullptr;
    FakeAccessibilityTrust* serverTrust = nullptr;
    FakeGlobalKeyMonitor* serverKeys = nullptr;
    std::shared_ptr<PortalShortcuts> shortcuts;
    std::unique_ptr<PortalAccessibilityTrust> trust;
    std::unique_ptr<PortalKeyMonitor> keys;
    std::vector<KeyEvent> pressed;
};

TEST_F(PortalAdaptersTest, TrustIsWhatThePortalListsOrTheDisplayServerGives) {
    EXPECT_FALSE(trust->isTrusted());
    grant();
    EXPECT_TRUE(trust->isTrusted());
    portal->events.changed({});
    EXPECT_FALSE(trust->isTrusted());
    serverTrust->trusted = true;
    EXPECT_TRUE(trust->isTrusted());
}

TEST_F(PortalAdaptersTest, ARequestOpensTheDesktopsQuestion) {
    portal->answer(Outcome::done);
    trust->requestWithPrompt();
    portal->answer(Outcome::done);
    EXPECT_EQ(portal->asked, 1);
    EXPECT_EQ(serverTrust->prompts, 0);
}

TEST_F(PortalAdaptersTest, AnyKeyThatTheDesktopHasCountsAsTheChord) {
    grant();
    const auto registration = listen();
    portal->events.pressed(u"toggle"_s);
    ASSERT_EQ(pressed.size(), 1U);
    EXPECT_EQ(pressed[0].characters, u"t"_s);
    EXPECT_EQ(pressed[0].modifiers, Modifier::control);
    EXPECT_FALSE(pressed[0].isRepeat);
}

TEST_F(PortalAdaptersTest, TheDisplayServersPressesAreHeardAsWell) {
    const auto registration = listen();
    ASSERT_NE(registration, nullptr);
    serverKeys->press({.characters = u"t"_s, .modifiers = Modifier::control});
    EXPECT_EQ(pressed.size(), 1U);
}

TEST_F(PortalAdaptersTest, NobodyListensWhereNeitherHasTheChord) {
    serverKeys->allowed = false;
    EXPECT_EQ(listen(), nullptr);
    grant();
    EXPECT_NE(listen(), nullptr);
}

TEST_F(PortalAdaptersTest, NothingIsHeardAfterTheRegistrationEnded) {
    grant();
    listen().reset();
    portal->events.pressed(u"toggle"_s);
    EXPECT_TRUE(pressed.empty());
}

TEST_F(PortalAdaptersTest, ActionsGoToWhoeverAskedForThem) {
    std::vector<GlobalKeyMonitor::Action> actions;
    keys->onAction([&](GlobalKeyMonitor::Action action) { actions.push_back(action); });
    portal->events.pressed(u"slower"_s);
    EXPECT_EQ(actions, std::vector{GlobalKeyMonitor::Action::slower});
    keys->onAction(nullptr);
    portal->events.pressed(u"slower"_s);
    EXPECT_EQ(actions.size(), 1U);
}

} // namespace
} // namespace tessaline

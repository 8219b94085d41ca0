#include "macos/adapters/MacAdaptersFixture.h"
#include "platform/ActivationPolicy.h"
#include "platform/NativeLook.h"
#include "platform/WindowTraits.h"
#include "platform/macos/MacAdapters.h"

#include <QWidget>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MacWindowTraitsTest : public MacAdaptersTest {
protected:
    WindowTraits::NativeWindow native() const {
        return reinterpret_cast<WindowTraits::NativeWindow>(mac.view);
    }

    std::unique_ptr<WindowTraits> traits = makeWindowTraits();
};

TEST_F(MacWindowTraitsTest, ShowTheWindowAboveAllOthersOnEveryDesktop) {
    QWidget window;
    traits->adopt(window);
    EXPECT_THAT(takeCalls(), ElementsAre(u"setLevel:1000"_s, u"setCollectionBehavior:81"_s,
                                         u"setHasShadow:1"_s));
}

TEST_F(MacWindowTraitsTest, LeaveTheWindowOutOfRecordings) {
    EXPECT_TRUE(traits->canExcludeFromCapture());
    EXPECT_TRUE(traits->excludeFromCapture(native()));
    EXPECT_THAT(takeCalls(), ElementsAre(u"setSharingType:0"_s));
}

TEST_F(MacWindowTraitsTest, AdmitThatRecordingsShowTheWindowFromMacOs15On) {
    mac.majorVersion = 14;
    EXPECT_TRUE(traits->canExcludeFromCapture());
    mac.majorVersion = 15;
    EXPECT_FALSE(traits->canExcludeFromCapture());
    EXPECT_FALSE(traits->excludeFromCapture(native()));
    EXPECT_THAT(takeCalls(), ElementsAre(u"setSharingType:0"_s));
}

TEST_F(MacWindowTraitsTest, TakeTheKeyboardAndGiveItBackToTheApplicationThatHadIt) {
    traits->takeKeyboard(native());
    EXPECT_THAT(takeCalls(), ElementsAre(u"activateIgnoringOtherApps:1"_s, u"makeKeyWindow"_s));
    traits->giveKeyboardBack(native());
    EXPECT_THAT(takeCalls(), ElementsAre(u"activateWithOptions:0 editor"_s));
    traits->giveKeyboardBack(native());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(MacWindowTraitsTest, TakeNoKeyboardThatTheWindowHas) {
    mac.isActive = true;
    mac.keyWindow = mac.window;
    traits->takeKeyboard(native());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(MacWindowTraitsTest, LeaveTheKeyboardToAnApplicationThatTookItSince) {
    traits->takeKeyboard(native());
    mac.isActive = false;
    takeCalls();
    traits->giveKeyboardBack(native());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(MacWindowTraitsTest, LeaveTheKeyboardToAnotherWindowOfOursThatTookItSince) {
    traits->takeKeyboard(native());
    mac.keyWindow = mac.otherWindow;
    takeCalls();
    traits->giveKeyboardBack(native());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(MacWindowTraitsTest, GiveNothingBackToOurselves) {
    FakeObjectiveC::release(mac.menuBarOwner);
    mac.menuBarOwner = mac.ourselves;
    traits->takeKeyboard(native());
    takeCalls();
    traits->giveKeyboardBack(native());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(MacWindowTraitsTest, HoldTheApplicationThatHadTheKeyboardForAsLongAsTheyLive) {
    traits->takeKeyboard(native());
    EXPECT_EQ(mac.menuBarOwner->references, 2);
    traits.reset();
    EXPECT_EQ(mac.menuBarOwner->references, 1);
}

class MacApplicationTest : public MacAdaptersTest {};

TEST_F(MacApplicationTest, IsInTheDockOrAHelper) {
    const auto policy = makeActivationPolicy();
    policy->set(ActivationPolicy::Kind::regular);
    policy->set(ActivationPolicy::Kind::accessory);
    policy->activateIgnoringOtherApps();
    EXPECT_THAT(takeCalls(), ElementsAre(u"setActivationPolicy:0"_s, u"setActivationPolicy:1"_s,
                                         u"activateIgnoringOtherApps:1"_s));
}

TEST_F(MacApplicationTest, HasTheSystemsDarkLook) {
    EXPECT_TRUE(makeNativeLook()->showDark());
    EXPECT_THAT(takeCalls(), ElementsAre(u"setAppearance:dark"_s));
}

} // namespace
} // namespace tessaline

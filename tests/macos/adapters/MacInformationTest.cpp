#include "macos/adapters/MacAdaptersFixture.h"
#include "platform/AccessibilityTrust.h"
#include "platform/BundleInformation.h"
#include "platform/UserDefaults.h"
#include "platform/macos/MacAdapters.h"

#include <QGuiApplication>
#include <QScreen>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MacInformationTest : public MacAdaptersTest {};

TEST_F(MacInformationTest, TellsWhetherThePermissionIsThere) {
    const auto trust = makeAccessibilityTrust();
    EXPECT_FALSE(trust->isTrusted());
    mac.isTrusted = true;
    EXPECT_TRUE(trust->isTrusted());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(MacInformationTest, AsksTheSystemToPromptForThePermission) {
    makeAccessibilityTrust()->requestWithPrompt();
    EXPECT_THAT(takeCalls(), ElementsAre(u"trust with prompt: true"_s));
}

TEST_F(MacInformationTest, ReadsTheBundle) {
    mac.bundleIdentifier = u"app.tessaline.Tessaline"_s;
    mac.bundleTexts = {{u"CFBundleShortVersionString"_s, u"1.2"_s}};
    mac.resources = u"/Applications/Tessaline.app/Contents/Resources"_s;
    const auto bundle = makeBundleInformation();
    EXPECT_EQ(bundle->identifier(), mac.bundleIdentifier);
    EXPECT_EQ(bundle->value(u"CFBundleShortVersionString"_s), u"1.2"_s);
    EXPECT_EQ(bundle->resourceFolder(), mac.resources);
}

TEST_F(MacInformationTest, MissesWhatTheBundleDoesNotSay) {
    const auto bundle = makeBundleInformation();
    EXPECT_EQ(bundle->identifier(), std::nullopt);
    EXPECT_EQ(bundle->value(u"CFBundleShortVersionString"_s), std::nullopt);
    EXPECT_EQ(bundle->value(u"a number"_s), std::nullopt);
    EXPECT_EQ(bundle->resourceFolder(), std::nullopt);
    mac.resources = u"x"_s.repeated(5000);
    EXPECT_EQ(bundle->resourceFolder(), std::nullopt) << "too long for a path";
}

TEST_F(MacInformationTest, KeepsPreferencesUnderTheBundlesIdentifier) {
    const auto defaults = makeUserDefaults();
    EXPECT_EQ(defaults->string(u"TelemetryDeck.user"_s), std::nullopt);
    defaults->setString(u"TelemetryDeck.user"_s, u"a text"_s);
    EXPECT_THAT(
        mac.preferences,
        ElementsAre(std::pair(u"app.tessaline.Tessaline TelemetryDeck.user"_s, u"a text"_s)));
    EXPECT_THAT(takeCalls(), ElementsAre(u"save app.tessaline.Tessaline"_s));
    EXPECT_EQ(makeUserDefaults()->string(u"TelemetryDeck.user"_s), u"a text"_s);
}

TEST_F(MacInformationTest, TakesNoPreferenceThatIsNoText) {
    mac.preferenceOfAnotherType = u"app.tessaline.Tessaline number"_s;
    EXPECT_EQ(makeUserDefaults()->string(u"number"_s), std::nullopt);
}

TEST_F(MacInformationTest, TellsScreensFromEachOther) {
    const QScreen& screen = *QGuiApplication::primaryScreen();
    mac.displays = {{.id = 7, .bounds = {-1000, 0, 1000, 800}},
                    {.id = 9, .bounds = screen.geometry(), .isBuiltIn = true}};
    EXPECT_EQ(identifyScreen(screen).id, 9u);
    EXPECT_TRUE(identifyScreen(screen).builtIn);
    mac.displays.pop_back();
    EXPECT_EQ(identifyScreen(screen).id, 0u) << "none of those";
    mac.displays.clear();
    EXPECT_EQ(identifyScreen(screen).id, 0u) << "none at all";
}

} // namespace
} // namespace tessaline

#include "app/ProgramSurroundings.h"

#include "support/FakeAccessibilityTrust.h"
#include "support/FakeObsidianIntegration.h"
#include "support/FakeScreens.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

TEST(ProgramSurroundings, TellWhatIsThereAtThatMoment) {
    FakeObsidianIntegration obsidian;
    const TestPlatform system;
    const ProgramSurroundings surroundings(obsidian, system.platform);
    EXPECT_FALSE(surroundings.isObsidianAppInstalled());
    EXPECT_FALSE(surroundings.isObsidianVaultFound());
    EXPECT_FALSE(surroundings.isObsidianPluginInstalled());
    EXPECT_FALSE(surroundings.isObsidianPluginActive());
    EXPECT_FALSE(surroundings.isAccessibilityGranted());
    EXPECT_EQ(surroundings.screenCount(), 0);

    obsidian.appPath = QStringLiteral("/app");
    EXPECT_TRUE(surroundings.isObsidianAppInstalled());
    obsidian.vault = QStringLiteral("/vault");
    EXPECT_TRUE(surroundings.isObsidianVaultFound());
    obsidian.pluginInstalled = true;
    EXPECT_TRUE(surroundings.isObsidianPluginInstalled());
    EXPECT_FALSE(surroundings.isObsidianPluginActive());
    obsidian.pluginEnabled = true;
    EXPECT_TRUE(surroundings.isObsidianPluginActive());
    system.trust.trusted = true;
    EXPECT_TRUE(surroundings.isAccessibilityGranted());
    system.screens.attached.resize(3);
    EXPECT_EQ(surroundings.screenCount(), 3);
}

} // namespace
} // namespace tessaline

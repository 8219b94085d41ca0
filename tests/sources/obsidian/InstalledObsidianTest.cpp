#include "sources/obsidian/InstalledObsidian.h"

#include "sources/obsidian/ObsidianHome.h"
#include "support/FakeApplicationLookup.h"
#include "support/FakeBundleInformation.h"
#include "support/FakeMainQueue.h"
#include "support/FakeTaskRunner.h"
#include "support/PrintQt.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

class InstalledObsidianTest : public ::testing::Test {
protected:
    InstalledObsidianTest() { system.bundle.resources = home.bundle.resources; }

    ObsidianHome home;
    TestPlatform system;
    FakeApplicationLookup& lookup = system.applications;
    FakeMainQueue& mainQueue = system.mainQueue;
    FakeTaskRunner& tasks = system.queryTasks;
    InstalledObsidian obsidian{home.path(), VaultRegistry(home.path()), system.platform};
};

using PluginState = ObsidianIntegration::PluginState;

TEST_F(InstalledObsidianTest, IsThereWhenItsApplicationIs) {
    home.putRegistry("{}");
    EXPECT_FALSE(obsidian.isObsidianPresent());
    lookup.paths = {u"/opt/Obsidian/obsidian"_s};
    EXPECT_TRUE(obsidian.isObsidianPresent());
}

TEST_F(InstalledObsidianTest, IsProvenByAnExistingVaultWhereApplicationsMayBeUnknown) {
    EXPECT_FALSE(obsidian.isObsidianPresent());
    lookup.isComplete = false;
    EXPECT_TRUE(obsidian.isObsidianPresent());
    home.useVault(home.path() + u"/no such folder"_s);
    EXPECT_FALSE(obsidian.isObsidianPresent());
    home.putRegistry("{}");
    EXPECT_FALSE(obsidian.isObsidianPresent());
}

TEST_F(InstalledObsidianTest, LooksThePluginUpInTheBackground) {
    std::vector<PluginState> states;
    const auto lookUp = [&] {
        obsidian.lookUpPlugin([&](const PluginState& state) { states.push_back(state); });
        tasks.runAll();
    };
    lookUp();
    EXPECT_TRUE(states.empty());
    mainQueue.runAll();
    EXPECT_EQ(states, (std::vector{PluginState{false, false}}));
    EXPECT_TRUE(obsidian.installPlugin().success);
    lookUp();
    putFile(home.communityList(), "[]");
    lookUp();
    home.putRegistry("{}");
    lookUp();
    mainQueue.runAll();
    EXPECT_EQ(states, (std::vector{PluginState{false, false}, PluginState{true, true},
                                   PluginState{true, false}, PluginState{false, false}}));
}

TEST_F(InstalledObsidianTest, FindsTheApplicationAndTheVault) {
    lookup.paths = {u"/opt/Obsidian/obsidian"_s};
    EXPECT_EQ(obsidian.obsidianAppPath(), u"/opt/Obsidian/obsidian"_s);
    EXPECT_EQ(obsidian.findObsidianVault(), home.vault);
}

TEST_F(InstalledObsidianTest, HasThePluginOnceItIsInstalled) {
    EXPECT_FALSE(obsidian.isPluginInstalled());
    EXPECT_FALSE(obsidian.isPluginEnabled());
    EXPECT_TRUE(obsidian.installPlugin().success);
    EXPECT_TRUE(obsidian.isPluginInstalled());
    EXPECT_TRUE(obsidian.isPluginEnabled());
}

TEST_F(InstalledObsidianTest, TellsInstalledByTheProgramAndEnabledByTheList) {
    EXPECT_TRUE(obsidian.installPlugin().success);
    ASSERT_TRUE(QFile::remove(home.pluginFolder() + "/main.js"_L1));
    EXPECT_FALSE(obsidian.isPluginInstalled());
    EXPECT_TRUE(obsidian.isPluginEnabled());
    putFile(home.communityList(), R"(["other"])");
    EXPECT_FALSE(obsidian.isPluginEnabled());
    putFile(home.communityList(), R"(["obsidian-tessaline",1])");
    EXPECT_FALSE(obsidian.isPluginEnabled());
}

TEST_F(InstalledObsidianTest, HasNoPluginWithoutAVault) {
    EXPECT_TRUE(obsidian.installPlugin().success);
    home.putRegistry("{}");
    EXPECT_EQ(obsidian.findObsidianVault(), std::nullopt);
    EXPECT_FALSE(obsidian.isPluginInstalled());
    EXPECT_FALSE(obsidian.isPluginEnabled());
}

TEST_F(InstalledObsidianTest, SaysNothingAboutFilesThatCannotBeRead) {
    putFile(home.communityList(), "not JSON");
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(obsidian.isPluginEnabled());
    home.putRegistry("not JSON");
    EXPECT_EQ(obsidian.findObsidianVault(), std::nullopt);
    EXPECT_FALSE(obsidian.isPluginInstalled());
    EXPECT_FALSE(obsidian.isPluginEnabled());
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

} // namespace
} // namespace tessaline

#include "sources/obsidian/InstalledObsidian.h"

#include "sources/obsidian/ObsidianHome.h"
#include "support/FakeApplicationLookup.h"
#include "support/FakeFolderChooser.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

class InstalledObsidianTest : public ::testing::Test {
protected:
    ObsidianHome home;
    FakeApplicationLookup lookup;
    FakeFolderChooser chooser;
    InstalledObsidian obsidian{home.path(), lookup, home.bundle, chooser};
};

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

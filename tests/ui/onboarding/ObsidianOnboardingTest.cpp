#include "controls/IconImage.h"
#include "support/Part.h"
#include "support/PrintQt.h"
#include "ui/OnboardingWindowFixture.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class ObsidianOnboarding : public OnboardingWindowFixture {
protected:
    void giveObsidianAnIcon() {
        QPixmap icon(48, 48);
        icon.fill(Qt::red);
        stage.icons.icons.emplace(u"/apps/obsidian"_s, QIcon(icon));
    }

    bool clipboardIsActive() const {
        return dynamic_cast<const ClipboardSource*>(sourceManager->activeSource()) != nullptr;
    }
};

TEST_F(ObsidianOnboarding, ObsidianCannotBeUsedWithoutTheApplication) {
    stage.obsidian.vault = u"/vault"_s;
    window();
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(),
              u"Obsidian not detected on this computer"_s);
    EXPECT_FALSE(part<Switch>(obsidian(), "toggleSwitch")->isEnabled());
    EXPECT_TRUE(part<QLabel>(obsidian(), "iconLabel"));
    switchObsidian();
    EXPECT_FALSE(obsidianEnabled());
}

TEST_F(ObsidianOnboarding, ObsidianCanBeUsedWhereItsVaultIsProofEnough) {
    stage.obsidian.vault = u"/vault"_s;
    stage.obsidian.isProvenByVault = true;
    shown();
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(),
              u"Send notes from Obsidian straight into the prompter"_s);
    EXPECT_TRUE(part<Switch>(obsidian(), "toggleSwitch")->isEnabled());
    EXPECT_TRUE(part<QLabel>(obsidian(), "iconLabel"));
    switchObsidian();
    EXPECT_TRUE(obsidianEnabled());
    EXPECT_EQ(stage.obsidian.installations, 1);
}

TEST_F(ObsidianOnboarding, ObsidianCannotBeUsedWithoutAVault) {
    stage.obsidian.appPath = u"/apps/obsidian"_s;
    window();
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(), u"No Obsidian vault found"_s);
    EXPECT_FALSE(part<Switch>(obsidian(), "toggleSwitch")->isEnabled());
}

TEST_F(ObsidianOnboarding, ObsidianStartsOffAndShowsItsIcon) {
    giveObsidianAnIcon();
    stage.installObsidian(true, true);
    stage.settings.setSourceEnabled(SourceType::obsidian, true);
    window();
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(),
              u"Send notes from Obsidian straight into the prompter"_s);
    EXPECT_TRUE(part<Switch>(obsidian(), "toggleSwitch")->isEnabled());
    EXPECT_FALSE(part<Switch>(obsidian(), "toggleSwitch")->isChecked());
    EXPECT_TRUE(part<IconImage>(obsidian(), "iconImageView"));
}

TEST_F(ObsidianOnboarding, SwitchingObsidianOnInstallsThePluginAndSaysSo) {
    giveObsidianAnIcon();
    stage.installObsidian();
    shown();
    switchObsidian();
    EXPECT_TRUE(obsidianEnabled());
    EXPECT_EQ(stage.obsidian.installations, 1);
    ASSERT_THAT(stage.recorder.names(),
                ElementsAre(u"source_enabled"_s, u"obsidian_plugin_installed"_s));
    EXPECT_EQ(stage.recorder.events[0].properties,
              (QMap<QString, QString>{{u"source_type"_s, u"obsidian"_s}}));
    EXPECT_EQ(stage.recorder.events[1].properties[u"success"_s], u"true"_s);
    ASSERT_TRUE(sheet());
    EXPECT_EQ(part<QLabel>(*sheet(), "messageLabel")->text(), u"Notes Bridge Installed"_s);
    EXPECT_EQ(
        part<QLabel>(*sheet(), "informativeLabel")->text(),
        u"Restart Obsidian to activate.\n\nIn Obsidian, you'll find a \"Send to Tessaline\" icon in the sidebar, or press Ctrl+P and type \"tessaline\"."_s);
    EXPECT_EQ(part<QLabel>(*sheet(), "iconLabel")->grab().toImage().pixelColor(24, 24),
              QColor(Qt::red));
    ASSERT_EQ(alertButtons(*sheet()).size(), 1);
    EXPECT_EQ(alertButtons(*sheet())[0]->text(), u"OK"_s);
    EXPECT_TRUE(part<Switch>(obsidian(), "toggleSwitch")->isChecked());
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(), u"Plugin active ✓"_s);
}

TEST_F(ObsidianOnboarding, LooksForTheVaultOnce) {
    stage.installObsidian();
    shown();
    EXPECT_EQ(stage.obsidian.vaultSearches, 1);
    stage.obsidian.vault.reset();
    switchObsidian();
    EXPECT_EQ(stage.obsidian.vaultSearches, 1);
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(), u"Plugin active ✓"_s);
    EXPECT_TRUE(part<Switch>(obsidian(), "toggleSwitch")->isEnabled());
}

TEST_F(ObsidianOnboarding, AFailedInstallationIsReportedAndLeavesObsidianOn) {
    giveObsidianAnIcon();
    stage.installObsidian();
    stage.obsidian.installResult = {false, u"Could not copy"_s};
    shown();
    switchObsidian();
    ASSERT_TRUE(sheet());
    EXPECT_EQ(part<QLabel>(*sheet(), "messageLabel")->text(), u"Plugin Installation"_s);
    EXPECT_EQ(part<QLabel>(*sheet(), "informativeLabel")->text(), u"Could not copy"_s);
    EXPECT_TRUE(isWarning(window(), *sheet()));
    EXPECT_EQ(stage.recorder.events[1].properties[u"success"_s], u"false"_s);
    EXPECT_TRUE(obsidianEnabled());
    EXPECT_TRUE(part<Switch>(obsidian(), "toggleSwitch")->isChecked());
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(), u"Plugin not found"_s);
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_FALSE(sheet());
    EXPECT_TRUE(window().isVisible());
}

TEST_F(ObsidianOnboarding, TellsThatThePluginIsDisabledInObsidian) {
    stage.installObsidian(true, false);
    stage.obsidian.installResult.success = false;
    shown();
    switchObsidian();
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(),
              u"Plugin installed but disabled in Obsidian"_s);
}

TEST_F(ObsidianOnboarding, SwitchingObsidianOffRecordsAndUninstallsNothing) {
    stage.installObsidian();
    shown();
    switchObsidian();
    QTest::keyClick(sheet(), Qt::Key_Return);
    stage.recorder.events.clear();
    switchObsidian();
    EXPECT_FALSE(obsidianEnabled());
    EXPECT_TRUE(stage.obsidian.pluginInstalled);
    EXPECT_THAT(stage.recorder.events, IsEmpty());
    EXPECT_FALSE(sheet());
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(),
              u"Send notes from Obsidian straight into the prompter"_s);
}

TEST_F(ObsidianOnboarding, TakesAnActiveObsidianFromTheSourceManagerAtFirst) {
    stage.settings.setSourceEnabled(SourceType::obsidian, true);
    stage.settings.setActiveSourceType(SourceType::obsidian);
    sourceManager = stage.makeSourceManager();
    window();
    EXPECT_TRUE(clipboardIsActive());
}

TEST_F(ObsidianOnboarding, TellsTheSourceManagerToo) {
    sourceManager = stage.makeSourceManager();
    stage.installObsidian();
    shown();
    switchObsidian();
    sourceManager->setActiveSource(SourceType::obsidian);
    QTest::keyClick(sheet(), Qt::Key_Return);
    switchObsidian();
    EXPECT_EQ(stage.settings.activeSourceType(), SourceType::clipboard);
    EXPECT_TRUE(clipboardIsActive());
    EXPECT_FALSE(obsidianEnabled());
}

TEST_F(ObsidianOnboarding, RecordsThatObsidianIsEnabled) {
    stage.installObsidian();
    shown();
    switchObsidian();
    QTest::keyClick(sheet(), Qt::Key_Return);
    stage.recorder.events.clear();
    continueButton().click();
    EXPECT_EQ(stage.recorder.events[0].properties,
              (QMap<QString, QString>{{u"accessibility_granted"_s, u"false"_s},
                                      {u"obsidian_enabled"_s, u"true"_s}}));
}

} // namespace
} // namespace tessaline

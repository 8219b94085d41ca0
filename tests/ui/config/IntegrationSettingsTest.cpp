#include "appearance/SystemPalette.h"
#include "controls/IconImage.h"
#include "support/CaseName.h"
#include "support/PrintQt.h"
#include "ui/ConfigWindowFixture.h"
#include "ui/controls/StatusDot.h"
#include "ui/controls/Switch.h"

#include <QLabel>

#include <algorithm>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class IntegrationSettings : public ConfigWindowFixture {
protected:
    void enableObsidian() { stage.settings.setSourceEnabled(SourceType::obsidian, true); }

    Switch& obsidianToggle() { return control<Switch>("obsidianToggle"); }
    QLabel& status() { return control<QLabel>("obsidianStatusLabel"); }
    QPushButton& reinstall() { return control<QPushButton>("obsidianConfigButton"); }

    bool hasText(const QString& text) {
        const auto labels = window().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&text](const QLabel* label) { return label->text() == text; });
    }
};

TEST_F(IntegrationSettings, TheClipboardIsOnForGood) {
    const auto& toggle = control<Switch>("clipboardToggle");
    EXPECT_TRUE(toggle.isChecked());
    EXPECT_FALSE(toggle.isEnabled());
    EXPECT_TRUE(hasText(u"📋"_s));
}

TEST_F(IntegrationSettings, ObsidianShowsItsOwnIconWhereTheSystemHasOne) {
    QPixmap icon(16, 16);
    icon.fill(Qt::red);
    stage.installObsidian();
    stage.icons.icons.emplace(u"/apps/obsidian"_s, QIcon(icon));
    EXPECT_FALSE(hasText(u"📄"_s));
    const auto images = window().findChildren<QLabel*>();
    const auto image = std::find_if(images.begin(), images.end(), [](const QLabel* label) {
        return dynamic_cast<const IconImage*>(label) != nullptr;
    });
    ASSERT_NE(image, images.end());
    EXPECT_EQ((*image)->size(), QSize(20, 20));
}

TEST_F(IntegrationSettings, ObsidianShowsAnEmojiWithoutAnIcon) {
    stage.installObsidian();
    EXPECT_TRUE(hasText(u"📄"_s));
}

TEST_F(IntegrationSettings, ObsidianShowsAnEmojiWithoutTheApplication) {
    EXPECT_TRUE(hasText(u"📄"_s));
}

TEST_F(IntegrationSettings, NothingIsSaidAboutThePluginWhileObsidianIsOff) {
    stage.installObsidian(true, true);
    shown();
    EXPECT_FALSE(obsidianToggle().isChecked());
    EXPECT_FALSE(status().isVisible());
    EXPECT_FALSE(reinstall().isVisible());
    EXPECT_EQ(status().text(), QString());
}

struct PluginState {
    bool installed;
    bool enabled;
    QColor color;
    QString text;
};

class PluginStatus : public IntegrationSettings, public testing::WithParamInterface<PluginState> {};

TEST_P(PluginStatus, IsShownByColourAndWords) {
    enableObsidian();
    stage.installObsidian(GetParam().installed, GetParam().enabled);
    shown();
    EXPECT_TRUE(obsidianToggle().isChecked());
    const auto& dot = control<StatusDot>("obsidianStatusDot");
    EXPECT_TRUE(dot.isVisible());
    EXPECT_EQ(dot.color(), GetParam().color);
    EXPECT_EQ(dot.accessibleName(), GetParam().text);
    EXPECT_EQ(status().text(), GetParam().text);
    EXPECT_TRUE(reinstall().isVisible());
}

INSTANTIATE_TEST_SUITE_P(
    States, PluginStatus,
    testing::Values(PluginState{false, false, SystemPalette::orange, u"Plugin not found"_s},
                    PluginState{false, true, SystemPalette::orange, u"Plugin not found"_s},
                    PluginState{true, true, SystemPalette::green, u"Plugin active"_s},
                    PluginState{true, false, SystemPalette::orange, u"Disabled in Obsidian"_s}),
    byMember<&PluginState::text>);

TEST_F(IntegrationSettings, SwitchingOnEnablesTheSourceAndRecordsIt) {
    useSourceManager();
    stage.installObsidian(true, true);
    shown();
    QTest::mouseClick(&obsidianToggle(), Qt::LeftButton);
    EXPECT_TRUE(stage.settings.isSourceEnabled(SourceType::obsidian));
    ASSERT_THAT(stage.recorder.names(), ElementsAre(u"source_enabled"_s));
    EXPECT_EQ(stage.recorder.events[0].properties,
              (QMap<QString, QString>{{u"source_type"_s, u"obsidian"_s}}));
    EXPECT_EQ(status().text(), u"Plugin active"_s);
    EXPECT_THAT(titlesOf(control<PopupButton>("config_sourcePopup")),
                ElementsAre(u"Obsidian"_s, u"Clipboard"_s));
    EXPECT_EQ(control<PopupButton>("config_sourcePopup").currentText(), u"Clipboard"_s);
    EXPECT_EQ(stage.obsidian.installations, 0);
    EXPECT_FALSE(sheet());
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(IntegrationSettings, SpaceSwitchesToo) {
    useSourceManager();
    stage.installObsidian(true, true);
    QTest::keyClick(&obsidianToggle(), Qt::Key_Space);
    EXPECT_TRUE(stage.settings.isSourceEnabled(SourceType::obsidian));
}

TEST_F(IntegrationSettings, SwitchingOnInstallsAMissingPluginAndTellsTheOutcome) {
    useSourceManager();
    stage.installObsidian();
    stage.obsidian.installResult = {true, u"Restart Obsidian."_s};
    shown();
    QTest::mouseClick(&obsidianToggle(), Qt::LeftButton);
    EXPECT_EQ(stage.obsidian.installations, 1);
    EXPECT_THAT(stage.recorder.names(),
                ElementsAre(u"source_enabled"_s, u"obsidian_plugin_installed"_s));
    ASSERT_TRUE(sheet());
    EXPECT_EQ(part<QLabel>(*sheet(), "messageLabel")->text(), u"Plugin Reinstalled"_s);
    EXPECT_EQ(part<QLabel>(*sheet(), "informativeLabel")->text(), u"Restart Obsidian."_s);
    EXPECT_EQ(status().text(), u"Plugin active"_s); // while the alert still shows
}

TEST_F(IntegrationSettings, SwitchingTheActiveSourceOffFallsBackAndSaysSo) {
    enableObsidian();
    stage.settings.setActiveSourceType(SourceType::obsidian);
    useSourceManager();
    stage.installObsidian(true, true);
    shown();
    QTest::mouseClick(&obsidianToggle(), Qt::LeftButton);
    EXPECT_EQ(stage.settings.activeSourceType(), SourceType::clipboard);
    EXPECT_FALSE(stage.settings.isSourceEnabled(SourceType::obsidian));
    EXPECT_EQ(stage.recorder.names().back(), u"source_disabled"_s);
    EXPECT_FALSE(status().isVisible());
    EXPECT_EQ(status().text(), QString());
    EXPECT_THAT(titlesOf(control<PopupButton>("config_sourcePopup")), ElementsAre(u"Clipboard"_s));
    EXPECT_EQ(control<PopupButton>("config_sourcePopup").currentText(), u"Clipboard"_s);
    EXPECT_THAT(sources, ElementsAre(SourceType::clipboard));
}

TEST_F(IntegrationSettings, ASlowLookUpIsNotAskedForAgainNorWaitedFor) {
    enableObsidian();
    stage.installObsidian(true, true);
    window().startPeriodicRefresh();
    stage.timers.advance(7);
    EXPECT_EQ(stage.obsidian.lookUps.size(), 1U);
    stage.obsidian.finishLookUps();
    EXPECT_EQ(status().text(), u"Plugin active"_s);
    stage.timers.advance(2);
    EXPECT_EQ(stage.obsidian.lookUps.size(), 1U);
}

TEST_F(IntegrationSettings, ALookUpThatEndsAfterAnInstallationChangesNothing) {
    enableObsidian();
    stage.installObsidian();
    shown().startPeriodicRefresh();
    stage.timers.advance(2);
    QTest::mouseClick(&reinstall(), Qt::LeftButton);
    stage.obsidian.finishLookUps();
    EXPECT_EQ(status().text(), u"Plugin active"_s);
    stage.obsidian.pluginEnabled = false;
    stage.timers.advance(2);
    stage.obsidian.finishLookUps();
    EXPECT_EQ(status().text(), u"Disabled in Obsidian"_s);
}

TEST_F(IntegrationSettings, ALookUpThatEndsAfterTheWindowIsHarmless) {
    enableObsidian();
    stage.installObsidian();
    auto doomed =
        std::make_unique<ConfigWindow>(stage.settings, nullptr, stage.platform, stage.services);
    doomed->startPeriodicRefresh();
    stage.timers.advance(2);
    doomed.reset();
    ASSERT_EQ(stage.obsidian.lookUps.size(), 1U);
    stage.obsidian.finishLookUps();
}

TEST_F(IntegrationSettings, WithoutASourceManagerSwitchingIsOnlyRecorded) {
    QTest::mouseClick(&obsidianToggle(), Qt::LeftButton);
    EXPECT_FALSE(stage.settings.isSourceEnabled(SourceType::obsidian));
    EXPECT_EQ(stage.recorder.names().front(), u"source_enabled"_s);
}

TEST_F(IntegrationSettings, SwitchingOffUninstallsNothing) {
    enableObsidian();
    useSourceManager();
    stage.installObsidian(true, true);
    QTest::mouseClick(&obsidianToggle(), Qt::LeftButton);
    EXPECT_TRUE(stage.obsidian.pluginInstalled);
    EXPECT_EQ(stage.obsidian.installations, 0);
    EXPECT_FALSE(sheet());
}

TEST_F(IntegrationSettings, SwitchingAnInactiveSourceOffNamesTheActiveOneToo) {
    enableObsidian();
    useSourceManager();
    stage.installObsidian(true, true);
    QTest::mouseClick(&obsidianToggle(), Qt::LeftButton);
    EXPECT_THAT(sources, ElementsAre(SourceType::clipboard));
}

TEST_F(IntegrationSettings, ReinstallingReportsSuccessWithTheApplicationsIcon) {
    QPixmap icon(48, 48);
    icon.fill(Qt::red);
    enableObsidian();
    stage.installObsidian(true, false);
    stage.icons.icons.emplace(u"/apps/obsidian"_s, QIcon(icon));
    shown();
    QTest::mouseClick(&reinstall(), Qt::LeftButton);
    ASSERT_TRUE(sheet());
    EXPECT_EQ(part<QLabel>(*sheet(), "messageLabel")->text(), u"Plugin Reinstalled"_s);
    ASSERT_EQ(alertButtons(*sheet()).size(), 1);
    EXPECT_EQ(alertButtons(*sheet())[0]->text(), u"OK"_s);
    EXPECT_EQ(part<QLabel>(*sheet(), "iconLabel")->grab().toImage().pixelColor(24, 24),
              QColor(Qt::red));
    EXPECT_EQ(stage.recorder.events[0].properties[u"success"_s], u"true"_s);
}

TEST_F(IntegrationSettings, ReinstallingReportsFailureWithTheReason) {
    QPixmap icon(48, 48);
    icon.fill(Qt::red);
    enableObsidian();
    stage.installObsidian();
    stage.icons.icons.emplace(u"/apps/obsidian"_s, QIcon(icon));
    stage.obsidian.installResult = {false, u"No space left"_s};
    shown();
    QTest::mouseClick(&reinstall(), Qt::LeftButton);
    ASSERT_TRUE(sheet());
    EXPECT_EQ(part<QLabel>(*sheet(), "messageLabel")->text(), u"Installation Failed"_s);
    EXPECT_EQ(part<QLabel>(*sheet(), "informativeLabel")->text(), u"No space left"_s);
    EXPECT_TRUE(isWarning(window(), *sheet()));
    EXPECT_EQ(stage.recorder.events[0].properties[u"success"_s], u"false"_s);
    EXPECT_EQ(status().text(), u"Plugin not found"_s);
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_FALSE(sheet());
    EXPECT_TRUE(window().isVisible());
}

TEST_F(IntegrationSettings, RefreshingSetsTheSwitchWithoutSwitching) {
    useSourceManager();
    window();
    enableObsidian();
    window().refreshUI();
    EXPECT_TRUE(obsidianToggle().isChecked());
    EXPECT_EQ(status().text(), u"Plugin not found"_s);
    EXPECT_EQ(stage.obsidian.installations, 0);
    EXPECT_TRUE(stage.recorder.events.empty());
}

} // namespace
} // namespace tessaline

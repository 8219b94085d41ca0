#include "appearance/SystemPalette.h"
#include "controls/ElidingLabel.h"
#include "support/CaseName.h"
#include "support/PrintQt.h"
#include "ui/ConfigWindowFixture.h"
#include "ui/TextType.h"
#include "ui/config/ShortcutsGrid.h"
#include "ui/controls/PointSlider.h"
#include "ui/controls/Separator.h"
#include "ui/controls/SliderRow.h"
#include "ui/controls/StatusDot.h"

#include <QFontMetricsF>

#include <set>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::SizeIs;

class SettingsLook : public ConfigWindowFixture {
protected:
    SettingsLook() {
        stage.settings.setSourceEnabled(SourceType::obsidian, true);
        stage.settings.setActiveSourceType(SourceType::appleNotes);
    }

    QLabel& label(const QString& text) { return labelReading(shown(), text); }

    QRect bounds(const QWidget& part) { return {part.mapTo(&window(), QPoint(0, 0)), part.size()}; }

    /// All parts of a class that has no meta object of its own.
    template <typename T>
    std::vector<T*> parts() {
        std::vector<T*> found;
        for (QWidget* part : shown().findChildren<QWidget*>())
            if (auto* wanted = dynamic_cast<T*>(part)) found.push_back(wanted);
        return found;
    }
};

struct Text {
    QString text;
    TextType type;
    QColor color;
};

class SettingsText : public SettingsLook, public testing::WithParamInterface<Text> {};

TEST_P(SettingsText, HasItsSizeWeightAndColour) {
    const QLabel& shownLabel = label(GetParam().text);
    EXPECT_EQ(typeOf(shownLabel), GetParam().type);
    EXPECT_EQ(shownLabel.palette().color(QPalette::WindowText), GetParam().color);
}

const TextType title{13, QFont::DemiBold};
const TextType name{13, QFont::Normal};
const TextType small{11, QFont::Normal};
const TextType key{11, QFont::Medium};

INSTANTIATE_TEST_SUITE_P(
    Texts, SettingsText,
    testing::Values(
        Text{u"Enabled Integrations"_s, title, SystemPalette::label},
        Text{u"Active Source"_s, title, SystemPalette::label},
        Text{u"Display"_s, title, SystemPalette::label},
        Text{u"Shortcuts"_s, title, SystemPalette::label},
        Text{u"📋"_s, {16, QFont::Normal}, SystemPalette::label},
        Text{u"📄"_s, {16, QFont::Normal}, SystemPalette::label},
        Text{u"Clipboard"_s, name, SystemPalette::label},
        Text{u"Obsidian"_s, name, SystemPalette::label},
        Text{u"Plugin not found"_s, small, SystemPalette::secondaryLabel},
        Text{u"No note selected"_s, name, SystemPalette::label},
        Text{u"Screen"_s, name, SystemPalette::label}, Text{u"Width"_s, name, SystemPalette::label},
        Text{u"450px"_s, name, SystemPalette::secondaryLabel},
        Text{u"Height"_s, name, SystemPalette::label},
        Text{u"256px"_s, name, SystemPalette::secondaryLabel},
        Text{u"Font Size"_s, name, SystemPalette::label},
        Text{u"16pt"_s, name, SystemPalette::secondaryLabel},
        Text{u"Position"_s, name, SystemPalette::label},
        Text{u"Center"_s, name, SystemPalette::secondaryLabel},
        Text{u"Scroll Speed"_s, name, SystemPalette::label},
        Text{u"Ctrl + V"_s, key, SystemPalette::label},
        Text{u"→"_s, small, SystemPalette::tertiaryLabel},
        Text{u"Paste content"_s, small, SystemPalette::secondaryLabel},
        Text{u"Works from any app:"_s, {10, QFont::Normal}, SystemPalette::tertiaryLabel},
        Text{u"Ctrl + Scroll"_s, key, SystemPalette::label},
        Text{u"Scroll up or down"_s, small, SystemPalette::secondaryLabel},
        Text{u"Shortcuts in Any Application"_s, name, SystemPalette::label}),
    byMember<&Text::text>);

TEST_F(SettingsLook, TheSmallButtonsHaveSmallTitles) {
    EXPECT_EQ(typeOf(control<QPushButton>("obsidianConfigButton")), small);
    EXPECT_EQ(typeOf(control<QPushButton>("accessibilityFixButton")), small);
}

TEST_F(SettingsLook, ThePartsStandTenPointsApartAndTwentyFromTheEdges) {
    window().refreshUI();
    shown().fitInto(window().wholeSize().height());
    const QWidget& integrations = *control<QWidget>("clipboardToggle").parentWidget();
    const QRect top = bounds(label(u"Enabled Integrations"_s));
    EXPECT_EQ(top.topLeft(), QPoint(20, 20));
    EXPECT_EQ(bounds(integrations).top(), top.bottom() + 1 + 10);
    EXPECT_EQ(bounds(integrations).width(), 280);
    const QRect bottom = bounds(*control<QWidget>("accessibilityDot").parentWidget());
    EXPECT_EQ(bottom.left(), 20);
    EXPECT_EQ(bottom.width(), 280);
    EXPECT_EQ(window().height() - 1 - bottom.bottom(), 20);
    EXPECT_EQ(bottom.top(), bounds(*parts<ShortcutsGrid>().at(0)).bottom() + 1 + 10);
}

TEST_F(SettingsLook, ThreeSeparatorsStandAboveTheirTitles) {
    const auto separators = parts<Separator>();
    ASSERT_THAT(separators, SizeIs(3));
    const std::vector<QString> below{u"Active Source"_s, u"Display"_s, u"Shortcuts"_s};
    for (std::size_t i = 0; i < below.size(); ++i) {
        const QRect line = bounds(*separators[i]);
        EXPECT_EQ(line.left(), 20);
        EXPECT_EQ(line.width(), 280);
        EXPECT_EQ(bounds(label(below[i])).top(), line.bottom() + 1 + 10);
    }
}

TEST_F(SettingsLook, EverySliderStandsDirectlyBelowItsRow) {
    const auto rows = parts<SliderRow>();
    const auto sliders = parts<PointSlider>();
    ASSERT_THAT(rows, SizeIs(4));
    ASSERT_THAT(sliders, SizeIs(4));
    constexpr const char* values[] = {"widthValueLabel", "heightValueLabel", "fontValueLabel",
                                      "xOffsetLabel"};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(bounds(*rows[i]).width(), 280);
        EXPECT_EQ(bounds(*sliders[i]).top(), bounds(*rows[i]).bottom() + 1 + 10);
        EXPECT_EQ(bounds(*sliders[i]).left(), 20);
        const auto* value = part<QLabel>(*rows[i], values[i]);
        ASSERT_TRUE(value);
        EXPECT_EQ(bounds(*value).right(), 299);
        EXPECT_TRUE(value->alignment() & Qt::AlignRight);
    }
}

TEST_F(SettingsLook, TheDotsHaveTheirSizesAndPlaces) {
    shown();
    const QRect status = bounds(control<StatusDot>("obsidianStatusDot"));
    EXPECT_EQ(status, QRect(QPoint(26, status.top()), QSize(8, 8)));
    EXPECT_EQ(bounds(control<QLabel>("obsidianStatusLabel")).left(), 20 + 20 + 8);
    EXPECT_EQ(bounds(label(u"Obsidian"_s)).left(), 20 + 20 + 8);
    const QRect accessibility = bounds(control<StatusDot>("accessibilityDot"));
    EXPECT_EQ(accessibility.size(), QSize(10, 10));
    EXPECT_EQ(bounds(control<QLabel>("accessibilityLabel")).left(), 20 + 10 + 6);
}

TEST_F(SettingsLook, TheSourcesRowHasItsSizes) {
    shown();
    const QRect container = bounds(control<QWidget>("sourceConfigContainer"));
    EXPECT_EQ(bounds(control<PopupButton>("config_sourcePopup")).top(),
              bounds(label(u"Active Source"_s)).bottom() + 1 + 10);
    EXPECT_EQ(container.width(), 280);
    EXPECT_GE(container.height(), 30);
    EXPECT_EQ(container.top(), bounds(control<PopupButton>("config_sourcePopup")).bottom() + 1 + 8);
    EXPECT_EQ(bounds(control<QWidget>("noteConfig")).top(), container.top());
    EXPECT_EQ(control<ElidingLabel>("noteNameField").width(), 150);
    EXPECT_EQ(control<ElidingLabel>("filePathField").width(), 180);
    EXPECT_EQ(bounds(control<QPushButton>("selectNoteButton")).left(), 20 + 150 + 8);
}

TEST_F(SettingsLook, TheShortcutsFitIntoTheColumnWithTheirArrowsInLine) {
    shown();
    const auto& grid = *parts<ShortcutsGrid>().at(0);
    EXPECT_LE(grid.sizeHint().width(), 280);
    std::set<int> arrows;
    for (const QLabel* part : grid.findChildren<QLabel*>()) {
        const QRect place = bounds(*part);
        EXPECT_GE(place.left(), 20);
        EXPECT_LE(place.right(), 299) << part->text().toStdString();
        EXPECT_GE(place.width(), part->sizeHint().width()) << part->text().toStdString();
        if (part->text() == u"→"_s) arrows.insert(place.left());
    }
    EXPECT_THAT(arrows, SizeIs(1));
}

TEST_F(SettingsLook, TheKeysColumnIs170PointsWideUnlessTheRestNeedsTheRoom) {
    const QRect arrow = bounds(label(u"→"_s));
    const int keys = bounds(label(u"Ctrl + Two-finger tap"_s)).width();
    const int rest = 8 + arrow.width() + 8 + bounds(label(u"Toggle auto-scroll"_s)).width();
    EXPECT_EQ(arrow.left(), 20 + (170 + rest <= 280 ? 170 : keys) + 8);
}

TEST_F(SettingsLook, TheShortcutsKeepTheirDistances) {
    const QRect paste = bounds(label(u"Paste content"_s));
    const QRect heading = bounds(label(u"Works from any app:"_s));
    const QRect scroll = bounds(label(u"Scroll up or down"_s));
    EXPECT_EQ(heading.left(), 20);
    EXPECT_EQ(heading.top(), paste.bottom() + 1 + 4 + 6 + 4);
    EXPECT_EQ(scroll.top(), heading.bottom() + 1 + 4);
    EXPECT_EQ(scroll.left(), paste.left());
    EXPECT_EQ(bounds(label(u"→"_s)).right() + 1 + 8, paste.left());
    const QFontMetricsF keys(label(u"Ctrl + V"_s).font());
    EXPECT_EQ(keys.horizontalAdvance(u"iiii"_s), keys.horizontalAdvance(u"MMMM"_s));
}

} // namespace
} // namespace tessaline

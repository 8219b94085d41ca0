#include "prompter/layout/FormatTable.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"

#include <gtest/gtest.h>

namespace tessaline {

namespace {

constexpr TextFont body{TextFont::Family::system, TextFont::Weight::medium, false, 16.5};

void expectColor(const QColor& color, double red, double green, double blue, double alpha) {
    EXPECT_NEAR(color.redF(), red, 0.001);
    EXPECT_NEAR(color.greenF(), green, 0.001);
    EXPECT_NEAR(color.blueF(), blue, 0.001);
    EXPECT_NEAR(color.alphaF(), alpha, 0.001);
}

TEST(FormatTable, ResolvesColorsWithTheirAlpha) {
    expectColor(resolvedColor({TextColor::Base::text, 1.0}), 0.82, 0.71, 0.55, 1.0);
    expectColor(resolvedColor({TextColor::Base::text, 0.4}), 0.82, 0.71, 0.55, 0.4);
    expectColor(resolvedColor({TextColor::Base::white, 0.05}), 1, 1, 1, 0.05);
    EXPECT_EQ(resolvedColor({TextColor::Base::systemGreen, 1.0}), SystemPalette::green);
}

TEST(FormatTable, ResolvesFontsOfTheSystem) {
    const QFont font = resolvedFont(body);
    EXPECT_EQ(font.family(), systemFont(16.5).family());
    EXPECT_NEAR(pointsOf(font), 16.5, 0.01);
    EXPECT_EQ(font.weight(), QFont::Medium);
    EXPECT_FALSE(font.italic());
}

TEST(FormatTable, ResolvesWeightAndSlant) {
    TextFont named = body;
    named.weight = TextFont::Weight::bold;
    named.italic = true;
    EXPECT_EQ(resolvedFont(named).weight(), QFont::Bold);
    EXPECT_TRUE(resolvedFont(named).italic());
    named.weight = TextFont::Weight::regular;
    EXPECT_EQ(resolvedFont(named).weight(), QFont::Normal);
}

TEST(FormatTable, ResolvesFontsOfFixedWidth) {
    TextFont named = body;
    named.family = TextFont::Family::monospaced;
    const QFont font = resolvedFont(named);
    EXPECT_EQ(font.family(), monospacedFont(16.5).family());
    EXPECT_NEAR(pointsOf(font), 16.5, 0.01);
}

TEST(FormatTable, StandsASizeOfNothing) {
    TextFont named = body;
    named.size = 0;
    EXPECT_NEAR(pointsOf(resolvedFont(named)), 1, 0.01);
}

TEST(FormatTable, SetsTextWithoutAttributesInTwelvePointsOfTheTextColor) {
    const FormatTable table;
    EXPECT_NEAR(pointsOf(table.plain().font), 12, 0.01);
    EXPECT_EQ(table.plain().font.weight(), QFont::Normal);
    EXPECT_EQ(table.plain().format.foreground().color(), SystemPalette::amber());
    EXPECT_FALSE(table.plain().background.isValid());
    EXPECT_FALSE(table.plain().font.strikeOut());
}

TEST(FormatTable, TakesEveryAttributeOver) {
    FormatTable table;
    table.assign({TextAttributes{},
                  TextAttributes{.font = body,
                                 .foreground = TextColor{TextColor::Base::systemGreen, 1.0},
                                 .background = TextColor{TextColor::Base::white, 0.08},
                                 .strikethrough = 1}});
    EXPECT_EQ(table[0].font, table.plain().font);
    const auto& entry = table[1];
    EXPECT_NEAR(pointsOf(entry.font), 16.5, 0.01);
    EXPECT_TRUE(entry.font.strikeOut());
    EXPECT_TRUE(entry.format.fontStrikeOut());
    EXPECT_EQ(entry.format.foreground().color(), SystemPalette::green);
    expectColor(entry.background, 1, 1, 1, 0.08);
}

} // namespace
} // namespace tessaline

#include "prompter/layout/ScriptLayout.h"

#include "reading/MarkdownScript.h"
#include "support/CaseName.h"
#include "support/Contrast.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto everything = std::numeric_limits<qsizetype>::max();

Script scriptOf(const QString& markdown) {
    return markdownScript(markdown, 16);
}

ScriptLayout layoutOf(const QString& markdown) {
    ScriptLayout layout;
    Script script = scriptOf(markdown);
    layout.setScript(std::make_shared<const Script>(std::move(script)));
    layout.measureMore(everything, 0);
    return layout;
}

double lineHeight() {
    return layoutOf(u"x"_s).height();
}

/// All of a script over black, 400 points wide.
QImage pictureOf(ScriptLayout& layout, const TextRange& selection = {}) {
    QImage image(400, int(layout.height()), QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    layout.draw(painter, 0, layout.height(), selection);
    painter.end();
    return image;
}

/// The leftmost and rightmost columns with anything drawn, for a script in a column of 400 points.
std::pair<int, int> inkOf(const QString& markdown) {
    ScriptLayout layout = layoutOf(markdown);
    const QImage image = pictureOf(layout);
    std::pair<int, int> ink{image.width(), -1};
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (qGray(image.pixel(x, y)) > 40) {
                ink.first = std::min(ink.first, x);
                ink.second = std::max(ink.second, x);
            }
        }
    }
    return ink;
}

TEST(ScriptLayout, IsMeasuredOnceEveryParagraphIs) {
    ScriptLayout layout;
    Script script = scriptOf(u"a\nb\nc"_s);
    layout.setScript(std::make_shared<const Script>(std::move(script)));
    EXPECT_FALSE(layout.isMeasured());
    layout.measureMore(1, 0);
    EXPECT_FALSE(layout.isMeasured());
    layout.measureMore(everything, 0);
    EXPECT_TRUE(layout.isMeasured());
}

TEST(ScriptLayout, AddsTheSpacingOfNeighboursUp) {
    // Each header brings 12 before and 6 after, on top of its line.
    const double one = layoutOf(u"# A"_s).height();
    EXPECT_DOUBLE_EQ(layoutOf(u"# A\n# A"_s).height(), 2 * one);
    EXPECT_GT(one, 18 + lineHeight());
}

TEST(ScriptLayout, GivesBlankLinesTheHeightOfTheDefaultFont) {
    const double blank = layoutOf(u"x\n\nx"_s).height() - 2 * lineHeight();
    EXPECT_GT(blank, 10);
    EXPECT_LT(blank, lineHeight());
    ScriptLayout estimated;
    EXPECT_DOUBLE_EQ(estimated.height(), blank);
}

TEST(ScriptLayout, LaysEveryLineOfACodeBlockOutAsAParagraph) {
    const double one = layoutOf(u"```\nx\n```"_s).height();
    const double two = layoutOf(u"```\nx\nx\n```"_s).height();
    const double blank = layoutOf(u""_s).height();
    EXPECT_DOUBLE_EQ(two - one, one - blank);
}

TEST(ScriptLayout, GivesBlankLinesInACodeBlockTheHeightOfItsOthers) {
    const double two = layoutOf(u"```\nx\nx\n```"_s).height();
    const double three = layoutOf(u"```\nx\n\nx\n```"_s).height();
    const double one = layoutOf(u"```\nx\n```"_s).height();
    EXPECT_DOUBLE_EQ(three - two, two - one);
}

TEST(ScriptLayout, IndentsListItemsAndTheirFurtherLines) {
    const QString words = u"word "_s.repeated(60);
    const auto [plainLeft, plainRight] = inkOf(words);
    const auto [left, right] = inkOf(u"    - "_s + words);
    EXPECT_NEAR(left - plainLeft, 16, 4);
    EXPECT_LE(right, 400);
    EXPECT_LE(plainRight, 400);
}

/// Where a paragraph's lines begin, in points from the column's left.
std::vector<double> lineBeginnings(ScriptLayout layout) {
    std::vector<double> beginnings;
    double y = -1;
    for (qsizetype offset = 0; offset < layout.script().length(); ++offset) {
        const QRectF caret = layout.caretRect(offset);
        if (caret.top() > y) beginnings.push_back(caret.left());
        y = caret.top();
    }
    return beginnings;
}

struct Indents {
    QString prefix;
    double first;
    double further;
};

void PrintTo(const Indents& indents, std::ostream* out) {
    *out << indents.prefix.toStdString();
}

class ScriptLayoutIndents : public testing::TestWithParam<Indents> {};

TEST_P(ScriptLayoutIndents, SetTheFirstAndTheFurtherLinesIn) {
    const QString text = GetParam().prefix + u"word "_s.repeated(60).trimmed();
    const auto beginnings = lineBeginnings(layoutOf(text));
    ASSERT_GT(beginnings.size(), 2u);
    EXPECT_DOUBLE_EQ(beginnings[0], GetParam().first);
    for (std::size_t line = 1; line < beginnings.size(); ++line)
        EXPECT_DOUBLE_EQ(beginnings[line], GetParam().further) << line;
}

INSTANTIATE_TEST_SUITE_P(Lines, ScriptLayoutIndents,
                         testing::Values(Indents{u""_s, 0, 0}, Indents{u"# "_s, 0, 0},
                                         Indents{u"- "_s, 0, 16}, Indents{u"\t- "_s, 16, 32},
                                         Indents{u"  - [ ] "_s, 8, 28}, Indents{u"1. "_s, 0, 20},
                                         Indents{u"> "_s, 16, 16}, Indents{u"```\n"_s, 8, 8}),
                         byMember<&Indents::prefix>);

TEST(ScriptLayout, KeepsCodeAwayFromTheRightEdge) {
    ScriptLayout layout = layoutOf(u"```\n"_s + u"x"_s.repeated(200));
    const double advance = layout.caretRect(1).left() - layout.caretRect(0).left();
    qsizetype fitting = 1;
    while (layout.caretRect(fitting).top() == layout.caretRect(0).top())
        ++fitting;
    EXPECT_LE(8 + double(fitting) * advance, 392 + 0.1);
    EXPECT_GT(8 + double(fitting + 1) * advance, 392);
}

TEST(ScriptLayout, PutsSpacingAboveAndBelow) {
    const auto spacing = [](const QString& markdown) {
        ScriptLayout layout = layoutOf(markdown);
        const QRectF line = layout.caretRect(0);
        return std::pair{line.top(), layout.heightOf(0) - line.bottom()};
    };
    EXPECT_EQ(spacing(u"text"_s), (std::pair{0.0, 0.0}));
    EXPECT_EQ(spacing(u"# header"_s), (std::pair{12.0, 6.0}));
    EXPECT_EQ(spacing(u"- item"_s), (std::pair{0.0, 2.0}));
    EXPECT_EQ(spacing(u"> quote"_s), (std::pair{0.0, 4.0}));
    EXPECT_EQ(spacing(u"---"_s), (std::pair{8.0, 8.0}));
    EXPECT_EQ(spacing(u"```\ncode\n```"_s), (std::pair{8.0, 8.0}));
}

/// How bright it is over black beside the first letter, an x, at the top of its line.
int groundOf(const QString& markdown) {
    ScriptLayout layout = layoutOf(markdown);
    const QImage image = pictureOf(layout);
    return qGray(image.pixel(layout.caretRect(0).topLeft().toPoint() + QPoint(2, 2)));
}

TEST(ScriptLayout, BrightensTheGroundOfCodeALittle) {
    EXPECT_EQ(groundOf(u"xxx"_s), 0);
    EXPECT_NEAR(groundOf(u"`xxx`"_s), 0.08 * 255, 1);
    EXPECT_NEAR(groundOf(u"```\nxxx\n```"_s), 0.05 * 255, 1);
}

TEST(ScriptLayout, KeepsTextInSightHoweverDeepItIsIndented) {
    const auto [left, right] = inkOf(u" "_s.repeated(500) + u"- far"_s);
    EXPECT_LT(left, 320);
    EXPECT_LT(right, 400);
}

TEST(ScriptLayout, SetsRightToLeftTextFromTheRight) {
    const auto [left, right] = inkOf(u"שלום"_s);
    EXPECT_GT(left, 200);
    EXPECT_GT(right, 380);
}

TEST(ScriptLayout, BreaksVeryLongWords) {
    const auto [left, right] = inkOf(u"m"_s.repeated(500));
    EXPECT_LT(left, 10);
    EXPECT_LE(right, 400);
    EXPECT_GT(layoutOf(u"m"_s.repeated(500)).height(), 5 * lineHeight());
}

TEST(ScriptLayout, CentresRules) {
    const auto [left, right] = inkOf(u"---"_s);
    EXPECT_NEAR(left, 400 - right, 4);
}

TEST(ScriptLayout, KeepsWhatDidNotChangeMeasured) {
    ScriptLayout layout = layoutOf(u"one\ntwo\nthree\nfour"_s);
    Script changed = scriptOf(u"one\ntwo, but longer\nthree\nfour"_s);
    layout.setScript(std::make_shared<const Script>(std::move(changed)));
    EXPECT_FALSE(layout.isMeasured());
    layout.measureMore(u"two, but longer"_s.size(), 0);
    EXPECT_TRUE(layout.isMeasured());
    EXPECT_DOUBLE_EQ(layout.height(), layoutOf(u"one\ntwo, but longer\nthree\nfour"_s).height());
}

TEST(ScriptLayout, KeepsTheRestMeasuredWhenAParagraphGoes) {
    ScriptLayout layout = layoutOf(u"one\n# A tall heading\ntwo\n\nthree"_s);
    Script shorter = scriptOf(u"one\ntwo\n\nthree"_s);
    layout.setScript(std::make_shared<const Script>(std::move(shorter)));
    EXPECT_TRUE(layout.isMeasured());
    EXPECT_DOUBLE_EQ(layout.height(), layoutOf(u"one\ntwo\n\nthree"_s).height());
}

TEST(ScriptLayout, TellsHowFarMeasuringMovedTheReadersPlace) {
    ScriptLayout layout;
    Script script = scriptOf(u"word "_s.repeated(200) + u"\nlast"_s);
    layout.setScript(std::make_shared<const Script>(std::move(script)));
    const double before = layout.topOf(1);
    const double moved = layout.measureMore(everything, before + 1);
    EXPECT_DOUBLE_EQ(layout.topOf(1) - before, moved);
    EXPECT_NE(moved, 0);
}

TEST(ScriptLayout, EstimatesHeightsWithinAReasonableFactor) {
    const QString text =
        (u"A sentence of quite ordinary words, as people speak them. "_s.repeated(8) + u"\n\n"_s)
            .repeated(50);
    ScriptLayout layout;
    Script script = scriptOf(text);
    layout.setScript(std::make_shared<const Script>(std::move(script)));
    const double estimated = layout.height();
    layout.measureMore(everything, 0);
    EXPECT_GT(estimated, layout.height() * 0.5);
    EXPECT_LT(estimated, layout.height() * 2);
}

TEST(ScriptLayout, FindsTheOffsetWhereItDrawsTheCaret) {
    ScriptLayout layout =
        layoutOf(u"# Title\n\nSome words in a line. "_s + u"And more. "_s.repeated(30));
    const qsizetype length = layout.script().length();
    for (qsizetype offset = 0; offset < length; offset += 7) {
        const QRectF caret = layout.caretRect(offset);
        EXPECT_NEAR(double(layout.offsetAt(caret.center())), double(offset), 1) << offset;
    }
}

TEST(ScriptLayout, AnswersForPlacesOutsideOfTheText) {
    ScriptLayout layout = layoutOf(u"one\ntwo"_s);
    EXPECT_EQ(layout.offsetAt({-100, -100}), 0);
    EXPECT_EQ(layout.offsetAt({10000, 10000}), 7);
    EXPECT_FALSE(layout.caretRect(7).isNull());
    EXPECT_EQ(layout.script().paragraphOf(3), 0u);
    EXPECT_EQ(layout.script().paragraphOf(4), 1u);
}

TEST(ScriptLayout, HighlightsTheSelection) {
    ScriptLayout layout = layoutOf(u"word word"_s);
    QImage plain(100, 30, QImage::Format_RGB32);
    plain.fill(Qt::black);
    QImage selected = plain;
    QPainter plainPainter(&plain);
    layout.draw(plainPainter, 0, 30, {});
    QPainter selectedPainter(&selected);
    layout.draw(selectedPainter, 0, 30, {0, 4});
    EXPECT_NE(plain, selected);
    EXPECT_GT(qBlue(selected.pixel(1, 2)), 80);
}

TEST(ScriptLayout, SelectedTextIsLegibleInEveryStyle) {
    for (const QString& markdown :
         {u"█ █"_s, u"# █ █"_s, u"~~█ █~~"_s, u"`█ █`"_s, u"> █ █"_s, u"- █ █"_s, u"- [x] █ █"_s,
          u"**█ █**"_s, u"```\n█ █\n```"_s, u"[█ █](https://example.org)"_s}) {
        ScriptLayout layout = layoutOf(markdown);
        const qsizetype start = layout.script().text().indexOf(u'█');
        ASSERT_GE(start, 0) << markdown.toStdString();
        const QImage picture = pictureOf(layout, {0, everything});
        const auto colorBetween = [&](qsizetype offset) {
            const QRectF caret = layout.caretRect(offset);
            const double x = (caret.left() + layout.caretRect(offset + 1).left()) / 2;
            const double aboveTheStrike = caret.top() + 0.3 * caret.height();
            return picture.pixelColor(int(x), int(aboveTheStrike));
        };
        EXPECT_GE(contrast(colorBetween(start + 1), colorBetween(start)), 4.5)
            << markdown.toStdString();
    }
}

TEST(ScriptLayout, ForgetsMeasuresWhenTheColumnChanges) {
    ScriptLayout layout = layoutOf(u"word "_s.repeated(100));
    const double wide = layout.height();
    layout.setTextWidth(100);
    EXPECT_FALSE(layout.isMeasured());
    layout.measureMore(everything, 0);
    EXPECT_GT(layout.height(), 2 * wide);
}

TEST(ScriptLayout, BreaksTheLinesAnewThatItHasDrawn) {
    ScriptLayout layout = layoutOf(u"word "_s.repeated(100));
    const double wide = layout.caretRect(400).top();
    layout.setTextWidth(100);
    EXPECT_GT(layout.caretRect(400).top(), 2 * wide);
}

} // namespace
} // namespace tessaline

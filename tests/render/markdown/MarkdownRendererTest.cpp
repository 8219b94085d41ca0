#include "render/markdown/MarkdownRenderer.h"

#include "render/markdown/ExpectedPieces.h"
#include "support/CaseName.h"

#include <QString>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;
using Pieces = std::vector<StyledPiece>;

const StyledPiece newline{u"\n"_s, {}};

constexpr ParagraphStyle headerParagraph(int level) {
    return {.spacingBefore = 12,
            .spacingAfter = 6,
            .kind = ParagraphKind::heading,
            .headingLevel = level};
}

constexpr ParagraphStyle quoteParagraph{
    .firstLineHeadIndent = 16, .headIndent = 16, .spacingAfter = 4, .kind = ParagraphKind::quote};

ParagraphStyle listParagraph(double indent, double hang) {
    return {.firstLineHeadIndent = indent,
            .headIndent = indent + hang,
            .spacingAfter = 2,
            .kind = ParagraphKind::listItem};
}

StyledPiece codeBlock(const QString& text) {
    TextAttributes attributes = body(0.9);
    attributes.font =
        TextFont{TextFont::Family::monospaced, TextFont::Weight::regular, false, testFontSize - 1};
    attributes.background = TextColor{TextColor::Base::white, 0.05};
    const ParagraphStyle paragraph{.firstLineHeadIndent = 8,
                                   .headIndent = 8,
                                   .tailIndent = -8,
                                   .spacingBefore = 8,
                                   .spacingAfter = 8,
                                   .kind = ParagraphKind::code};
    return {text, in(paragraph, attributes)};
}

StyledPiece horizontalRule() {
    const ParagraphStyle paragraph{.spacingBefore = 8,
                                   .spacingAfter = 8,
                                   .alignment = ParagraphStyle::Alignment::center,
                                   .kind = ParagraphKind::rule};
    return {u"─────────────────────"_s, in(paragraph, body(0.3))};
}

Pieces bullet(const QString& glyph, double indent, const QString& text) {
    const ParagraphStyle paragraph = listParagraph(indent, 16);
    return {{glyph + u' ', in(paragraph, body(0.7))}, {text, in(paragraph, body())}};
}

Pieces numbered(const QString& prefix, double indent, const QString& text) {
    const ParagraphStyle paragraph = listParagraph(indent, 20);
    return {{prefix, in(paragraph, body(0.7))}, {text, in(paragraph, body())}};
}

Pieces openTask(double indent, const QString& text) {
    const ParagraphStyle paragraph = listParagraph(indent, 20);
    return {{u"☐ "_s, in(paragraph, body(0.6))}, {text, in(paragraph, body())}};
}

Pieces doneTask(double indent, const QString& text) {
    const ParagraphStyle paragraph = listParagraph(indent, 20);
    TextAttributes box = body();
    box.foreground = TextColor{TextColor::Base::systemGreen, 1.0};
    return {{u"☑ "_s, in(paragraph, box)}, {text, in(paragraph, struck(body()))}};
}

Pieces header(int level, double size, const QString& text) {
    return {{text, in(headerParagraph(level), bold(size))}};
}

Pieces quote(const QString& text) {
    return {{u"┃ "_s, in(quoteParagraph, body(0.4))}, {text, in(quoteParagraph, body(0.8))}};
}

Pieces paragraph(const QString& text) {
    return {{text, body()}};
}

} // namespace

TEST(MarkdownRenderer, HoldsTheBodyFontTheTextColourAndTheFontSize) {
    const MarkdownRenderer renderer(18.5);
    EXPECT_EQ(renderer.fontSize, 18.5);
    EXPECT_EQ(renderer.baseFont,
              (TextFont{TextFont::Family::system, TextFont::Weight::medium, false, 18.5}));
    EXPECT_EQ(renderer.textColor, (TextColor{TextColor::Base::text, 1.0}));
}

TEST(MarkdownRenderer, RendersEmptyContentAsEmptyText) {
    EXPECT_EQ(rendered(u""), Pieces());
    EXPECT_EQ(rendered(QStringView()), Pieces());
}

TEST(MarkdownRenderer, JoinsLinesByPlainNewlinesWithoutATrailingOne) {
    EXPECT_EQ(rendered(u"a\nb"), (Pieces{{u"a"_s, body()}, newline, {u"b"_s, body()}}));
}

TEST(MarkdownRenderer, KeepsEmptyLinesAndATrailingNewline) {
    EXPECT_EQ(rendered(u"a\n\nb\n"),
              (Pieces{{u"a"_s, body()}, {u"\n\n"_s, {}}, {u"b"_s, body()}, newline}));
}

TEST(MarkdownRenderer, SplitsLinesAtLineFeedsOnly) {
    EXPECT_EQ(rendered(u"a\r\nb\u2028c"),
              (Pieces{{u"a\r"_s, body()}, newline, {u"b\u2028c"_s, body()}}));
}

TEST(MarkdownRenderer, RendersFencedLinesAsOneBlockFollowedByANewline) {
    EXPECT_EQ(rendered(u"```\none\n  *two*\n```"), (Pieces{codeBlock(u"one\n  *two*"_s), newline}));
}

TEST(MarkdownRenderer, AddsNothingBetweenAClosingFenceAndTheNextLine) {
    EXPECT_EQ(rendered(u"```\ncode\n```\nafter"),
              (Pieces{codeBlock(u"code"_s), newline, {u"after"_s, body()}}));
}

TEST(MarkdownRenderer, IgnoresTheLanguageAndTheIndentOfAFence) {
    EXPECT_EQ(rendered(u" \t```cpp\ncode\n\u00a0```` x"), (Pieces{codeBlock(u"code"_s), newline}));
}

TEST(MarkdownRenderer, RendersAnUnterminatedFenceAtTheEnd) {
    EXPECT_EQ(rendered(u"```\none\ntwo"), (Pieces{codeBlock(u"one\ntwo"_s), newline}));
}

TEST(MarkdownRenderer, RendersNothingForAFenceWithNothingAfterIt) {
    EXPECT_EQ(rendered(u"```"), Pieces());
    EXPECT_EQ(rendered(u"```\n"), Pieces());
    EXPECT_EQ(rendered(u"```\n\n\n"), Pieces());
}

TEST(MarkdownRenderer, RendersAnEmptyClosedBlockAsItsNewline) {
    EXPECT_EQ(rendered(u"```\n```"), Pieces{newline});
}

TEST(MarkdownRenderer, DropsBlankLinesAtTheStartOfABlockOnly) {
    EXPECT_EQ(rendered(u"```\n\n\na\n\nb\n\n```"), (Pieces{codeBlock(u"a\n\nb\n"_s), newline}));
}

TEST(MarkdownRenderer, StartsASecondBlockWithAnEmptyBuffer) {
    EXPECT_EQ(rendered(u"```\na\n```\n```\nb\n```"),
              (Pieces{codeBlock(u"a"_s), newline, codeBlock(u"b"_s), newline}));
}

TEST(MarkdownRenderer, KeepsMarkupInHeadersAtTheHeadersSize) {
    EXPECT_EQ(rendered(u"# **A** *b* `c` ~~d~~"),
              (Pieces{{u"A "_s, in(headerParagraph(1), bold(30))},
                      {u"b"_s, in(headerParagraph(1), italic(bold(30)))},
                      {u" "_s, in(headerParagraph(1), bold(30))},
                      {u"c"_s, in(headerParagraph(1), code(bold(30)))},
                      {u" "_s, in(headerParagraph(1), bold(30))},
                      {u"d"_s, in(headerParagraph(1), struck(bold(30)))}}));
}

TEST(MarkdownRenderer, StrikesFinishedTasksAfterTheBoxIncludingTheirMarkup) {
    const ParagraphStyle style = listParagraph(0, 20);
    Pieces expected = doneTask(0, u"a "_s);
    expected.push_back({u"b"_s, in(style, struck(bold()))});
    expected.push_back({u" "_s, in(style, struck(body()))});
    expected.push_back({u"c"_s, in(style, struck(code(body())))});
    EXPECT_EQ(rendered(u"- [x] a **b** `c`"), expected);
}

TEST(MarkdownRenderer, KeepsOnlyTheBoxOfAFinishedTaskWithoutText) {
    EXPECT_EQ(rendered(u"- [x] "), Pieces{doneTask(0, u""_s).front()});
}

TEST(MarkdownRenderer, SetsStrikesInQuotesAtHalfTheAlphaOfOrdinaryText) {
    Pieces expected = quote(u"a "_s);
    expected.push_back({u"b"_s, in(quoteParagraph, struck(body(0.8), 0.5))});
    EXPECT_EQ(rendered(u"> a ~~b~~"), expected);
}

TEST(MarkdownRenderer, RendersEmptyItemsAsTheirPrefixAlone) {
    EXPECT_EQ(rendered(u"- "), Pieces{bullet(u"•"_s, 0, u""_s).front()});
    EXPECT_EQ(rendered(u"7. "), Pieces{numbered(u"7. "_s, 0, u""_s).front()});
    EXPECT_EQ(rendered(u">"), Pieces{quote(u""_s).front()});
}

namespace {

struct LineCase {
    const char* name;
    QString line;
    Pieces expected;
};

void PrintTo(const LineCase& line, std::ostream* out) {
    *out << line.name;
}

class Lines : public testing::TestWithParam<LineCase> {};

const LineCase lineCases[] = {
    {"HyphenRule", u"---"_s, {horizontalRule()}},
    {"AsteriskRule", u"***"_s, {horizontalRule()}},
    {"UnderscoreRule", u" \t___\u00a0"_s, {horizontalRule()}},
    {"FourHyphensAreNoRule", u"----"_s, paragraph(u"----"_s)},
    {"RuleBeforeACarriageReturn", u"---\r"_s, paragraph(u"---\r"_s)},
    {"SpacedHyphensAreABullet", u"- - -"_s, bullet(u"•"_s, 0, u"- -"_s)},

    {"Header1", u"# One"_s, header(1, 30, u"One"_s)},
    {"Header2", u"## Two"_s, header(2, 27, u"Two"_s)},
    {"Header3", u"### Three"_s, header(3, 24, u"Three"_s)},
    {"Header4", u"#### Four"_s, header(4, 22, u"Four"_s)},
    {"Header5", u"##### Five"_s, header(5, 21, u"Five"_s)},
    {"Header6", u"###### Six"_s, header(6, 20, u"Six"_s)},
    {"SevenHashes", u"####### x"_s, paragraph(u"####### x"_s)},
    {"HeaderWithoutSpace", u"#Title"_s, paragraph(u"#Title"_s)},
    {"HeaderAlone", u"# "_s, paragraph(u"# "_s)},
    {"IndentedHeader", u" \t#\u2003 x \t"_s, header(1, 30, u"x"_s)},
    {"HeaderAfterALineSeparator", u"#\u2028x"_s, header(1, 30, u"x"_s)},
    {"EmptyHeaderBeforeACarriageReturn", u"#\r"_s, {}},
    {"HeaderKeepsItsClosingHashes", u"# a #"_s, header(1, 30, u"a #"_s)},

    {"OpenTask", u"- [ ] buy milk"_s, openTask(0, u"buy milk"_s)},
    {"IndentedOpenTask", u"  - [ ] buy milk"_s, openTask(8, u"buy milk"_s)},
    {"OpenTaskWithATab", u"*\t[\t]\tx"_s, openTask(0, u"x"_s)},
    {"OpenTaskWithANoBreakSpace", u"- [\u00a0] x"_s, openTask(0, u"x"_s)},
    {"DoneTask", u"- [x] done"_s, doneTask(0, u"done"_s)},
    {"DoneTaskInUpperCase", u"\t* [X]  done "_s, doneTask(16, u"done "_s)},
    {"TaskWithoutText", u"- [ ]"_s, bullet(u"•"_s, 0, u"[ ]"_s)},
    {"TaskWithoutSpace", u"- [x]done"_s, bullet(u"•"_s, 0, u"[x]done"_s)},
    {"TaskWithAnEmptyBox", u"- [] x"_s, bullet(u"•"_s, 0, u"[] x"_s)},

    {"Bullet", u"- item"_s, bullet(u"•"_s, 0, u"item"_s)},
    {"AsteriskBullet", u"* item"_s, bullet(u"•"_s, 0, u"item"_s)},
    {"BulletAtWidth3", u"   - a"_s, bullet(u"•"_s, 12, u"a"_s)},
    {"BulletAfterATab", u"\t* item"_s, bullet(u"◦"_s, 16, u"item"_s)},
    {"BulletAtWidth8", u" \t   - a"_s, bullet(u"▪"_s, 32, u"a"_s)},
    {"BulletAtWidth12", u"\t\t\t- a"_s, bullet(u"▫"_s, 48, u"a"_s)},
    {"BulletAtWidth20", u"\t\t\t\t\t- a"_s, bullet(u"▫"_s, 80, u"a"_s)},
    {"BulletAfterANoBreakSpace", u"\u00a0- a"_s, bullet(u"•"_s, 0, u"a"_s)},
    {"BulletWhoseIndentEndsAtANoBreakSpace", u" \u00a0\t- a"_s, bullet(u"•"_s, 4, u"a"_s)},
    {"BulletKeepsTrailingSpaces", u"-  a \t"_s, bullet(u"•"_s, 0, u"a \t"_s)},
    {"PlusIsNoBullet", u"+ item"_s, paragraph(u"+ item"_s)},
    {"HyphenWithoutSpace", u"-item"_s, paragraph(u"-item"_s)},

    {"Number", u"3. third"_s, numbered(u"3. "_s, 0, u"third"_s)},
    {"NumbersAreNotCountedAnew", u"  0012.   x"_s, numbered(u"0012. "_s, 8, u"x"_s)},
    {"ArabicNumber", u"\u0661\u0662. x"_s, numbered(u"\u0661\u0662. "_s, 0, u"x"_s)},
    {"NumberBeyondThePlane", u"\U0001d7ce. x"_s, numbered(u"\U0001d7ce. "_s, 0, u"x"_s)},
    {"NumberAfterAVerticalTab", u"\v\t1.\fx"_s, numbered(u"1. "_s, 0, u"x"_s)},
    {"NumberWithAParenthesis", u"1) x"_s, paragraph(u"1) x"_s)},
    {"NumberWithoutSpace", u"1.x"_s, paragraph(u"1.x"_s)},
    {"RomanNumber", u"\u2160. x"_s, paragraph(u"\u2160. x"_s)},
    {"SuperscriptNumber", u"\u00b2. x"_s, paragraph(u"\u00b2. x"_s)},

    {"Quote", u"> said"_s, quote(u"said"_s)},
    {"QuoteWithoutSpace", u">said"_s, quote(u"said"_s)},
    {"IndentedQuote", u" \t>  said \t"_s, quote(u"said"_s)},
    {"NestedQuote", u"> > said"_s, quote(u"> said"_s)},

    {"LeadingSpacesStay", u"   plain "_s, paragraph(u"   plain "_s)},
    {"Link", u"[site](page.md)"_s, paragraph(u"[site](page.md)"_s)},
    {"Image", u"![logo](a.png)"_s, paragraph(u"![logo](a.png)"_s)},
    {"Emoji", u"\U0001f468\u200d\U0001f469 e\u0301"_s,
     paragraph(u"\U0001f468\u200d\U0001f469 e\u0301"_s)},
    {"LoneSurrogates", u"\xdc00 \xd800"_s, paragraph(u"\xdc00 \xd800"_s)},
};

} // namespace

TEST_P(Lines, AreRenderedByTheFirstRuleThatHolds) {
    EXPECT_EQ(rendered(GetParam().line), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(MarkdownRenderer, Lines, testing::ValuesIn(lineCases),
                         byMember<&LineCase::name>);

} // namespace tessaline

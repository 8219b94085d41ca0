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

struct InlineCase {
    const char* name;
    QString text;
    std::vector<StyledPiece> expected;
};

void PrintTo(const InlineCase& markup, std::ostream* out) {
    *out << markup.name;
}

class InlineMarkup : public testing::TestWithParam<InlineCase> {};

const InlineCase cases[] = {
    {"BoldAndItalic",
     u"**bold** and *it*"_s,
     {{u"bold"_s, bold()}, {u" and "_s, body()}, {u"it"_s, italic(body())}}},
    {"BoldByUnderscores", u"__bold__"_s, {{u"bold"_s, bold()}}},
    {"ItalicByUnderscore", u"_it_"_s, {{u"it"_s, italic(body())}}},
    {"Code", u"a `b`"_s, {{u"a "_s, body()}, {u"b"_s, code(body())}}},
    {"Strike", u"a ~~b~~"_s, {{u"a "_s, body()}, {u"b"_s, struck(body())}}},
    {"SpacedAsterisks",
     u"a * b * c"_s,
     {{u"a "_s, body()}, {u" b "_s, italic(body())}, {u" c"_s, body()}}},
    {"UnderscoresInsideWords",
     u"snake_case_name"_s,
     {{u"snake"_s, body()}, {u"case"_s, italic(body())}, {u"name"_s, body()}}},

    {"EmptyBold", u"**** x"_s, {{u"**** x"_s, body()}}},
    {"EmptyBoldByUnderscores", u"____ x"_s, {{u"____ x"_s, body()}}},
    {"EmptyCode", u"`` x"_s, {{u"`` x"_s, body()}}},
    {"EmptyStrike", u"~~~~ x"_s, {{u"~~~~ x"_s, body()}}},
    {"LoneMarkers",
     u"* _ ` ~~ **"_s,
     {{u"• "_s,
       in({.headIndent = 16, .spacingAfter = 2, .kind = ParagraphKind::listItem}, body(0.7))},
      {u"_ ` ~~ **"_s,
       in({.headIndent = 16, .spacingAfter = 2, .kind = ParagraphKind::listItem}, body())}}},
    {"MarkersLeftOpen", u"a **b *c `d ~~e"_s, {{u"a **b *c `d ~~e"_s, body()}}},
    {"SingleTildes", u"~a~"_s, {{u"~a~"_s, body()}}},

    {"ThreeAsterisks", u"***x***"_s, {{u"x"_s, bold()}}},
    {"FiveAsterisks", u"*****"_s, {{u"*"_s, bold()}}},
    {"BoldInItalicIsFlattened", u"_**a**_"_s, {{u"a"_s, italic(body())}}},
    {"ItalicInBold", u"**_a_**"_s, {{u"a"_s, italic(bold())}}},
    {"BoldInsideItalicText", u"*a **b** c*"_s, {{u"a b c"_s, italic(body())}}},
    {"ItalicInsideBoldTextIsFlattened", u"**a _b_ c**"_s, {{u"a b c"_s, bold()}}},
    {"SingleAsteriskInBold", u"**a*b**"_s, {{u"a*b"_s, bold()}}},
    {"BoldInCode", u"`**a**`"_s, {{u"a"_s, code(body())}}},
    {"CodeInBold", u"**`a`**"_s, {{u"a"_s, code(body())}}},
    {"CodeInsideItalicTextIsFlattened", u"*a `b`*"_s, {{u"a b"_s, italic(body())}}},
    {"StrikeInsideBoldTextIsFlattened", u"**a ~~b~~**"_s, {{u"a b"_s, bold()}}},
    {"BoldInsideStruckText", u"~~a **b**~~"_s, {{u"a b"_s, struck(body())}}},
    {"BoldInStrike", u"~~**a**~~"_s, {{u"a"_s, struck(bold())}}},
    {"CodeInStrike", u"~~`a`~~"_s, {{u"a"_s, struck(code(body()))}}},
    {"CrossingBolds", u"__a**b__c**"_s, {{u"abc"_s, bold()}}},

    {"CodeAcrossTerminators", u"`a\rb`"_s, {{u"a\rb"_s, code(body())}}},
    {"NoEmphasisAcrossACarriageReturn", u"**a\rb**"_s, {{u"**a\rb**"_s, body()}}},
    {"NoEmphasisAcrossALineSeparator", u"*a\u2028b*"_s, {{u"*a\u2028b*"_s, body()}}},
    {"NoEmphasisAcrossANextLine", u"_a\u0085b_"_s, {{u"_a\u0085b_"_s, body()}}},
    {"NoStrikeAcrossAVerticalTab", u"~~a\vb~~"_s, {{u"~~a\vb~~"_s, body()}}},
    {"BoldBeforeACarriageReturn", u"**a**\r"_s, {{u"a"_s, bold()}, {u"\r"_s, body()}}},
    {"EmphasisOfAnEmoji", u"*\U0001f600*"_s, {{u"\U0001f600"_s, italic(body())}}},
    {"EmphasisOfALoneSurrogate", u"_\xd800_"_s, {{u"\xd800"_s, italic(body())}}},
    {"EmphasisBesideACombiningMark",
     u"*a*\u0301"_s,
     {{u"a"_s, italic(body())}, {u"\u0301"_s, body()}}},
};

} // namespace

TEST_P(InlineMarkup, IsStyledAndItsMarkersDisappear) {
    EXPECT_EQ(rendered(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(MarkdownRenderer, InlineMarkup, testing::ValuesIn(cases),
                         byMember<&InlineCase::name>);

} // namespace tessaline

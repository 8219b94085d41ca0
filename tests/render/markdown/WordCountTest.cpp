#include "render/markdown/MarkdownRenderer.h"
#include "support/CaseName.h"

#include <QString>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;

struct CountCase {
    const char* name;
    QString text;
    qsizetype words;
};

void PrintTo(const CountCase& count, std::ostream* out) {
    *out << count.name;
}

class WordCount : public testing::TestWithParam<CountCase> {};

const CountCase countCases[] = {
    {"Empty", u""_s, 0},
    {"Null", QString(), 0},
    {"BlankLines", u"\n \n\t\n"_s, 0},
    {"Prose", u"one two\nthree"_s, 3},
    {"HeaderWithEmphasis", u"# Hello *world*"_s, 2},
    {"HeaderWithoutSpace", u"#Title"_s, 1},
    {"HeadersWithoutText", u"# \n# \nx"_s, 1},
    {"IndentedHeader", u" # x"_s, 2},
    {"SevenHashes", u"####### x"_s, 2},
    {"Link", u"[site](page.md)"_s, 1},
    {"LinkOfTwoWords", u"[a b](c d)"_s, 2},
    {"LinkAcrossLines", u"[a\nb](c\nd)"_s, 2},
    {"LinkWithoutTarget", u"[a]()"_s, 1},
    {"LinkLeftOpen", u"[a b](c d"_s, 3},
    {"Image", u"![logo](a.png)"_s, 1},
    {"ImageWithoutText", u"![](a.png)"_s, 0},
    {"UnderscoreInAWord", u"snake_case"_s, 1},
    {"LoneAsterisks", u"a * b"_s, 2},
    {"Code", u"`a b` ``"_s, 2},
    {"FenceWithALanguage", u"```cpp\ncode\n```"_s, 2},
    {"Bullets", u"- a\n* b\n+ c"_s, 3},
    {"BulletOnABullet", u"- - a"_s, 2},
    {"BulletAcrossLines", u"-\n\na"_s, 1},
    {"OpenTask", u"- [ ] buy milk"_s, 4},
    {"DoneTask", u"- [x] done"_s, 2},
    {"Number", u"12. x"_s, 1},
    {"NumberOfAnotherScript", u"\u0661. x"_s, 1},
    {"NumberBeyondThePlane", u"\U0001d7ce. x"_s, 1},
    {"NumberWithoutSpace", u"1.x"_s, 1},
    {"NumberAlone", u"12"_s, 1},
    {"NumberWithoutPeriod", u"5  x"_s, 2},
    {"BulletBeforeANumber", u"- 1. x"_s, 1},
    {"NumberBeforeABullet", u"1. - x"_s, 2},
    {"Quote", u"> said"_s, 2},
    {"HyphenRule", u"a\n---\nb"_s, 2},
    {"LongHyphenRule", u"-----"_s, 0},
    {"HyphenRuleWithASpace", u"--- "_s, 1},
    {"AsteriskRule", u"***"_s, 0},
    {"UnderscoreRule", u"___"_s, 0},
    {"HyphenRuleBeforeACarriageReturn", u"a\r\n---\r\nb"_s, 2},
    {"TwoHyphensAreNoRule", u"--"_s, 1},
    {"PlusesAreNoRule", u"+++"_s, 1},
    {"NoBreakSpace", u"a\u00a0b"_s, 2},
    {"IdeographicSpace", u"a\u3000b"_s, 2},
    {"NextLine", u"a\u0085b"_s, 2},
    {"ZeroWidthSpace", u"a\u200bb"_s, 1},
    {"InformationSeparator", u"a\u001cb"_s, 1},
    {"LoneSurrogates", u"\xdc00 \xd800"_s, 2},
};

} // namespace

TEST_P(WordCount, CountsWordsWithoutSyntax) {
    EXPECT_EQ(MarkdownRenderer::wordCount(GetParam().text), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(MarkdownRenderer, WordCount, testing::ValuesIn(countCases),
                         byMember<&CountCase::name>);

} // namespace tessaline

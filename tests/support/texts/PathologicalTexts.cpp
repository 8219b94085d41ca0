#include "support/texts/PathologicalTexts.h"

namespace tessaline {

namespace {

constexpr PathologicalText texts[] = {
    {"Asterisks", u"*"},
    {"Backticks", u"`"},
    {"Underscores", u"_"},
    {"Tildes", u"~"},
    {"OpenBrackets", u"["},
    {"CloseBrackets", u"]"},
    {"Hashes", u"#"},
    {"Hyphens", u"-"},
    {"QuoteMarks", u">"},
    {"Digits", u"1"},
    {"DigitsBeyondThePlane", u"\U0001d7ce"},
    {"Spaces", u" "},
    {"NoBreakSpaces", u"\u00a0"},
    {"Tabs", u"\t"},
    {"BlankLines", u"\n"},
    {"BlankLinesOfSpaces", u"   \n"},
    {"CarriageReturns", u"\r"},
    {"CarriageReturnLineFeeds", u"\r\n"},
    {"LineSeparators", u"\u2028"},
    {"OneLineOfProse", u"the quick brown fox jumps over the lazy dog "},
    {"LinesOfProse", u"the quick brown fox\njumps over the lazy dog\n"},
    {"BoldOpeners", u"**a"},
    {"ItalicAndBoldOpeners", u"*a **b"},
    {"BoldUnderscoreOpeners", u"_a __b"},
    {"AsterisksAndUnderscores", u"*_"},
    {"TripleAsterisks", u"***a"},
    {"BoldsCutByTerminators", u"**a\r"},
    {"ItalicsCutByTerminators", u"*a\u2028"},
    {"StrikesCutByTerminators", u"~~\v"},
    {"StrikeOpeners", u"~~a"},
    {"CodeOpeners", u"`a"},
    {"EmptyCodes", u"``a"},
    {"Bolds", u"**a** "},
    {"BoldsByUnderscores", u"__a__ "},
    {"Italics", u"*a* "},
    {"ItalicsByUnderscore", u"_a_ "},
    {"Codes", u"`a` "},
    {"Strikes", u"~~a~~ "},
    {"NestedEmphasis", u"**a _b `c` d_ e** ~~f~~ "},
    {"LinkTargetsLeftOpen", u"[a]("},
    {"LinkLabelsLeftOpen", u"[a"},
    {"EmptyLabels", u"[]("},
    {"EmptyTargets", u"[a]()"},
    {"Links", u"[a](b)"},
    {"ImagesLeftOpen", u"!["},
    {"ImageTargetsLeftOpen", u"![]("},
    {"Images", u"![](b)"},
    {"Exclamations", u"!"},
    {"Bullets", u"- "},
    {"BulletLines", u"- a\n"},
    {"EmptyBulletLines", u"-\n"},
    {"HyphensBetweenTerminators", u"-\r"},
    {"Tasks", u"- [ ] "},
    {"TaskLines", u"- [x] a\n"},
    {"Numbers", u"1. "},
    {"NumberLines", u"1\n"},
    {"NumbersAndPeriodsBetweenTerminators", u"1.\u2029"},
    {"HeaderMarks", u"# "},
    {"EmptyHeaderLines", u"#\n"},
    {"RuleLines", u"---\n"},
    {"RulesThatGoOn", u"---a\r"},
    {"Fences", u"```\n"},
    {"FencedBlankLines", u"```\n\n\n\na\n"},
    {"DeepIndents", u"\t\t\t\t\t\t\t\t- a\n"},
    {"SurrogatesInTheWrongOrder", u"\xdc00\xd800"},
};

} // namespace

QString PathologicalText::make(qsizetype length) const {
    QString text;
    text.reserve(length + unit.size());
    while (text.size() < length) {
        text += unit;
    }
    text.truncate(length);
    return text;
}

std::span<const PathologicalText> pathologicalTexts() {
    return texts;
}

} // namespace tessaline

#include "reading/Script.h"

#include "ScriptOf.h"
#include "reading/ParagraphCutter.h"
#include "render/markdown/MarkdownRenderer.h"
#include "render/markdown/StyledTextBuilder.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList linesOf(const Script& script) {
    QStringList lines;
    for (std::size_t i = 0; i < script.paragraphs.size(); ++i)
        lines += script.content(i).text;
    return lines;
}

TEST(Script, HasOneEmptyParagraphWithoutText) {
    EXPECT_EQ(linesOf(Script()), QStringList{u""_s});
    EXPECT_EQ(linesOf(scriptOf(u""_s)), QStringList{u""_s});
}

TEST(Script, CutsTheTextAtNewlines) {
    EXPECT_EQ(linesOf(scriptOf(u"one\n\ntwo\n"_s)),
              (QStringList{u"one"_s, u""_s, u"two"_s, u""_s}));
}

TEST(Script, LeavesCarriageReturnsOut) {
    const Script script = scriptOf(u"one\r\n**two**\r\n\r\nth\rree"_s);
    EXPECT_EQ(linesOf(script), (QStringList{u"one"_s, u"two"_s, u""_s, u"three"_s}));
    const auto runs = script.content(1).runs;
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].length, 3);
}

TEST(Script, KnowsTheStyleThatEachParagraphBeginsWith) {
    const Script script = scriptOf(u"plain **bold** plain\n# Header\n\n- item"_s);
    for (std::size_t i = 0; i < script.paragraphs.size(); ++i) {
        const StyledFragment content = script.content(i);
        if (content.runs.empty()) continue;
        EXPECT_EQ(script.paragraphs[i].style, content.runs.front().style);
    }
    EXPECT_FALSE(script.attributes(2)->font); // that of the newline
}

TEST(Script, CutsVeryLongLinesIntoPiecesAtWhiteSpace) {
    const Script script = scriptOf(u"word "_s.repeated(10'000));
    ASSERT_GT(script.paragraphs.size(), 5u);
    QString joined;
    for (std::size_t i = 0; i < script.paragraphs.size(); ++i) {
        const auto& piece = script.paragraphs[i];
        EXPECT_LE(piece.length, ParagraphCutter::longestPiece);
        EXPECT_EQ(piece.continuesPrevious, i > 0);
        EXPECT_EQ(piece.continuesInNext, i + 1 < script.paragraphs.size());
        EXPECT_TRUE(script.content(i).text.endsWith(u' '));
        joined += script.content(i).text;
    }
    EXPECT_EQ(joined, script.text());
}

TEST(Script, NeverCutsThroughASurrogatePair) {
    const Script script = scriptOf(u"x"_s + u"😀"_s.repeated(20'000));
    ASSERT_GT(script.paragraphs.size(), 2u);
    for (std::size_t i = 0; i < script.paragraphs.size(); ++i) {
        EXPECT_FALSE(script.content(i).text.front().isLowSurrogate());
        EXPECT_FALSE(script.content(i).text.back().isHighSurrogate());
    }
}

TEST(Script, KnowsHeadingsAndTheirLevels) {
    const Script script =
        scriptOf(u"# One\ntext\n- item\n###### **Six**\n\n```\n# code\n```\n---"_s);
    QStringList headings;
    for (std::size_t i = 0; i < script.paragraphs.size(); ++i) {
        if (const int level = script.headingLevel(i))
            headings += u"%1 %2"_s.arg(level).arg(script.content(i).text);
    }
    EXPECT_EQ(headings, (QStringList{u"1 One"_s, u"6 Six"_s}));
}

TEST(Script, CountsAVeryLongHeaderOnce) {
    const Script script = scriptOf(u"# "_s + u"word "_s.repeated(5000));
    ASSERT_GT(script.paragraphs.size(), 1U);
    EXPECT_EQ(script.headingLevel(0), 1);
    EXPECT_EQ(script.headingLevel(1), 0);
}

TEST(Script, TellsParagraphsApartByTextAndAttributes) {
    const Script one = scriptOf(u"same\n**same**\nother"_s);
    const Script two = scriptOf(u"# title\nsame\nsame"_s);
    EXPECT_TRUE(one.hasSameParagraph(0, two, 1));
    EXPECT_TRUE(one.hasSameParagraph(0, two, 2));
    EXPECT_FALSE(one.hasSameParagraph(1, two, 1));
    EXPECT_FALSE(one.hasSameParagraph(2, two, 1));
    EXPECT_TRUE(one.hasSameParagraph(1, one, 1));
}

TEST(Script, TellsParagraphsOfAnotherFontSizeApart) {
    const Script large(MarkdownRenderer(20).render(u"same"));
    EXPECT_FALSE(large.hasSameParagraph(0, scriptOf(u"same"_s), 0));
}

TEST(Script, GivesWhatLiesBetweenTwoOffsets) {
    const Script script = scriptOf(u"one\n**two**\n\n"_s + u"word "_s.repeated(3000));
    const QString whole = u"one\ntwo\n\n"_s + u"word "_s.repeated(3000);
    EXPECT_EQ(script.length(), whole.size());
    EXPECT_EQ(script.text(), whole);
    EXPECT_EQ(script.text(2, 6), u"e\ntw"_s);
    EXPECT_EQ(script.text(7, 8), u"\n"_s);
    EXPECT_EQ(script.text(9000, 9100), whole.sliced(9000, 100));
    EXPECT_EQ(script.text(5, 5), QString());
    EXPECT_EQ(script.text(whole.size() - 2, whole.size() + 9), u"d "_s);
}

TEST(Script, FindsTheParagraphOfAnOffset) {
    const Script script = scriptOf(u"one\n\ntwo"_s);
    EXPECT_EQ(script.paragraphOf(0), 0U);
    EXPECT_EQ(script.paragraphOf(3), 0U); // its newline
    EXPECT_EQ(script.paragraphOf(4), 1U);
    EXPECT_EQ(script.paragraphOf(8), 2U);
}

} // namespace
} // namespace tessaline

#include "reading/Script.h"

#include "render/markdown/MarkdownRenderer.h"
#include "render/markdown/StyledTextBuilder.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

Script scriptOf(const QString& markdown) {
    return Script(MarkdownRenderer(16).render(markdown));
}

QStringList linesOf(const Script& script) {
    QStringList lines;
    for (const auto& paragraph : script.paragraphs)
        lines += script.textOf(paragraph).toString();
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
    qsizetype covered = 0;
    for (const auto& run : script.styled.runs) {
        EXPECT_EQ(run.start, covered);
        covered += run.length;
    }
    EXPECT_EQ(covered, script.styled.text.size());
}

TEST(Script, KnowsTheRunThatEachParagraphBeginsIn) {
    const Script script = scriptOf(u"plain **bold** plain\n# Header\n\n- item"_s);
    for (const auto& paragraph : script.paragraphs) {
        if (paragraph.length == 0) continue;
        const auto& run = script.styled.runs[std::size_t(paragraph.firstRun)];
        EXPECT_LE(run.start, paragraph.start);
        EXPECT_GT(run.start + run.length, paragraph.start);
    }
}

TEST(Script, CutsVeryLongLinesIntoPiecesAtWhiteSpace) {
    const Script script = scriptOf(u"word "_s.repeated(10'000));
    ASSERT_GT(script.paragraphs.size(), 5u);
    QString joined;
    for (std::size_t i = 0; i < script.paragraphs.size(); ++i) {
        const auto& piece = script.paragraphs[i];
        EXPECT_LE(piece.length, Script::longestPiece);
        EXPECT_EQ(piece.continuesPrevious, i > 0);
        EXPECT_EQ(piece.continuesInNext, i + 1 < script.paragraphs.size());
        EXPECT_TRUE(script.textOf(piece).endsWith(u' '));
        joined += script.textOf(piece);
    }
    EXPECT_EQ(joined, script.styled.text);
}

TEST(Script, NeverCutsThroughASurrogatePair) {
    const Script script = scriptOf(u"x"_s + u"😀"_s.repeated(20'000));
    ASSERT_GT(script.paragraphs.size(), 2u);
    for (const auto& piece : script.paragraphs) {
        EXPECT_FALSE(script.textOf(piece).front().isLowSurrogate());
        EXPECT_FALSE(script.textOf(piece).back().isHighSurrogate());
    }
}

TEST(Script, KnowsHeadingsAndTheirLevels) {
    const Script script =
        scriptOf(u"# One\ntext\n- item\n###### **Six**\n\n```\n# code\n```\n---"_s);
    QStringList headings;
    for (std::size_t i = 0; i < script.paragraphs.size(); ++i) {
        if (const int level = script.headingLevel(i))
            headings += u"%1 %2"_s.arg(level).arg(script.textOf(script.paragraphs[i]));
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

} // namespace
} // namespace tessaline

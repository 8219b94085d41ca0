#include "render/markdown/CountablePieces.h"

#include "render/markdown/WordCount.h"
#include "support/texts/RandomMarkdown.h"

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <span>

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr qsizetype whole = 1'000'000;

QString randomText(std::mt19937& random, std::span<const QStringView> tokens) {
    QString text;
    for (auto length = random() % 20; length > 0; --length)
        text += tokens[random() % tokens.size()];
    return text;
}

/// What links and images are made of.
QString randomBrackets(std::mt19937& random) {
    constexpr std::array<QStringView, 9> tokens{u"[", u"]",  u"(",   u")",    u"!",
                                                u"a", u"](", u"\na", u"\n- a"};
    return randomText(random, tokens);
}

/// What links, images and prefixes are made of, with many lines at which a cut is thought of.
QString randomSyntax(std::mt19937& random) {
    constexpr std::array<QStringView, 24> tokens{
        u"[",   u"]",    u"(",     u")",    u"![",   u"](",  u"*",  u"a",
        u" ",   u"\n",   u"\na",   u"\nb",  u"\n#",  u"- ",  u"1.", u"---",
        u"\n-", u"\n- ", u"\n1. ", u"\n+ ", u"\n> ", u"\n2", u"_",  u"#"};
    return randomText(random, tokens);
}

void expectSameCountInPieces(const QString& text) {
    ASSERT_EQ(countWords(text, 1), countWords(text, whole)) << text.toStdString();
}

qsizetype longestPieceOf(const QString& text, qsizetype shortest) {
    qsizetype longest = 0;
    for (CountablePieces pieces(text, shortest); !pieces.isAtEnd();)
        longest = std::max(longest, pieces.next().size());
    return longest;
}

} // namespace

TEST(CountablePieces, MakeUpTheText) {
    const QString text = u"one [two\nthree](four\nfive) six\nseven\n- eight\nnine\n"_s;
    QString joined;
    int count = 0;
    for (CountablePieces pieces(text, 1); !pieces.isAtEnd(); ++count)
        joined += pieces.next();
    EXPECT_EQ(joined, text);
    EXPECT_EQ(count, 4);
}

TEST(CountablePieces, CountLikeTheWholeForRandomSyntax) {
    std::mt19937 random(1);
    for (int i = 0; i < 400'000; ++i)
        ASSERT_NO_FATAL_FAILURE(expectSameCountInPieces(randomSyntax(random)));
}

TEST(CountablePieces, CountLikeTheWholeForRandomBrackets) {
    std::mt19937 random(3);
    for (int i = 0; i < 400'000; ++i)
        ASSERT_NO_FATAL_FAILURE(expectSameCountInPieces(randomBrackets(random)));
}

TEST(CountablePieces, CountLikeTheWholeForRandomDocuments) {
    RandomMarkdown random(2);
    for (int i = 0; i < 5'000; ++i)
        ASSERT_NO_FATAL_FAILURE(expectSameCountInPieces(random.document() + u"\na"_s));
}

TEST(CountablePieces, HoldNoImageThatReachesAcrossThem) {
    expectSameCountInPieces(u"[![a](b)\nx](c) d"_s);
    expectSameCountInPieces(u"[ ![a](b ] c)\nd](e) f"_s);
    expectSameCountInPieces(u"[a]**(b\nc) d"_s);
    expectSameCountInPieces(u"![][(a](b)\nc) d"_s);
}

TEST(CountablePieces, OfATalkAreShort) {
    const QString talk = u"A line, **loud** and [linked](page.md).\n\n- A point\nAnd more.\n"_s;
    EXPECT_LT(longestPieceOf(talk.repeated(1000), 2000), 4001 + talk.size());
}

TEST(CountablePieces, OfAListAreShort) {
    const QString line = u"- A point, **loud**, with a [link](page.md) in it\n"_s;
    EXPECT_LT(longestPieceOf(line.repeated(1000), 2000), 4001 + line.size());
}

} // namespace tessaline

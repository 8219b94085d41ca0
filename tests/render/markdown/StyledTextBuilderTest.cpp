#include "render/markdown/StyledTextBuilder.h"

#include "render/markdown/ExpectedPieces.h"

#include <gtest/gtest.h>

namespace tessaline {

TEST(StyledTextBuilder, GivesEqualAttributesTheSameIndex) {
    StyledTextBuilder builder;
    const int first = builder.styleIndex(body());
    EXPECT_NE(builder.styleIndex(bold()), first);
    EXPECT_EQ(builder.styleIndex(body()), first);
}

TEST(StyledTextBuilder, MergesNeighboursOfTheSameStyle) {
    StyledTextBuilder builder;
    const int style = builder.styleIndex(body());
    builder.append(u"a", style);
    builder.append(u"", builder.styleIndex(bold()));
    builder.append(u"b", style);
    const StyledText styled = builder.take();
    EXPECT_EQ(styled.text, QStringView(u"ab"));
    EXPECT_EQ(styled.runs, (std::vector<StyledText::Run>{{0, 2, style}}));
}

TEST(StyledTextBuilder, StartsARunWhereTheStyleChanges) {
    StyledTextBuilder builder;
    builder.append(u"a", builder.styleIndex(body()));
    builder.append(u"bc", builder.styleIndex({}));
    builder.append(u"d", builder.styleIndex(body()));
    const StyledText styled = builder.take();
    EXPECT_EQ(runDefect(styled), QString());
    EXPECT_EQ(piecesOf(styled), (std::vector<StyledPiece>{{QStringLiteral("a"), body()},
                                                          {QStringLiteral("bc"), {}},
                                                          {QStringLiteral("d"), body()}}));
}

TEST(StyledTextBuilder, YieldsAnEmptyTextWhenNothingWasAppended) {
    const StyledText styled = StyledTextBuilder().take();
    EXPECT_TRUE(styled.text.isEmpty());
    EXPECT_TRUE(styled.runs.empty());
}

} // namespace tessaline

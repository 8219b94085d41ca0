#include "support/texts/PathologicalTexts.h"

#include "render/markdown/MarkdownRenderer.h"
#include "support/CaseName.h"
#include "support/texts/StyledPiece.h"

#include <gtest/gtest.h>

#include <string>

namespace tessaline {

namespace {

/// A quadratic scanner would need hours for this many units.
constexpr qsizetype length = 2'000'000;

class PathologicalTexts : public testing::TestWithParam<PathologicalText> {};

} // namespace

TEST_P(PathologicalTexts, AreRendered) {
    const StyledText styled = MarkdownRenderer(16).render(GetParam().make(length));
    EXPECT_EQ(runDefect(styled), QString());
}

TEST_P(PathologicalTexts, AreCounted) {
    const qsizetype words = MarkdownRenderer::wordCount(GetParam().make(length));
    EXPECT_GE(words, 0);
    EXPECT_LE(words, (length + 1) / 2);
}

INSTANTIATE_TEST_SUITE_P(MarkdownRenderer, PathologicalTexts,
                         testing::ValuesIn(pathologicalTexts().begin(), pathologicalTexts().end()),
                         byMember<&PathologicalText::name>);

} // namespace tessaline

#include "render/markdown/ExpectedPieces.h"

#include "render/markdown/MarkdownRenderer.h"

#include <gtest/gtest.h>

namespace tessaline {

std::vector<StyledPiece> rendered(QStringView content) {
    const StyledText styled = MarkdownRenderer(testFontSize).render(content);
    EXPECT_EQ(runDefect(styled), QString());
    return piecesOf(styled);
}

TextAttributes body(double alpha) {
    return {.font =
                TextFont{TextFont::Family::system, TextFont::Weight::medium, false, testFontSize},
            .foreground = TextColor{TextColor::Base::text, alpha}};
}

TextAttributes bold(double size) {
    TextAttributes attributes = body();
    attributes.font = TextFont{TextFont::Family::system, TextFont::Weight::bold, false, size};
    return attributes;
}

TextAttributes italic(TextAttributes attributes) {
    attributes.font->italic = true;
    return attributes;
}

TextAttributes code(TextAttributes attributes) {
    attributes.font = TextFont{TextFont::Family::monospaced, TextFont::Weight::regular, false,
                               attributes.font->size - 1};
    attributes.background = TextColor{TextColor::Base::white, 0.08};
    return attributes;
}

TextAttributes struck(TextAttributes attributes, double alpha) {
    attributes.strikethrough = 1;
    attributes.foreground = TextColor{TextColor::Base::text, alpha};
    return attributes;
}

TextAttributes in(const ParagraphStyle& paragraph, TextAttributes attributes) {
    attributes.paragraph = paragraph;
    return attributes;
}

} // namespace tessaline

#pragma once

#include "render/markdown/InlineFormatter.h"
#include "render/markdown/MarkdownLine.h"
#include "render/markdown/MarkdownRenderer.h"
#include "render/markdown/StyledTextBuilder.h"

#include <array>
#include <map>
#include <utility>

namespace tessaline {

/// One rendering in progress: takes the lines of a document and puts the styled text together.
class DocumentRenderer {
public:
    /// Borrows the renderer for its own life; `expectedLength` in UTF-16 units.
    DocumentRenderer(const MarkdownRenderer& renderer, qsizetype expectedLength);

    /// Appends a line that is not code, as a paragraph without a newline at its end.
    void appendLine(QStringView line);

    /// Appends a plain newline.
    void appendNewline();

    /// Appends the joined lines of a fenced block and a plain newline.
    void appendCodeBlock(QStringView code);

    StyledText take();

private:
    /// How one kind of line looks, and the style indices of what has been met of it.
    struct LineStyle {
        QString prefix; ///< drawn before the text; for numbered items, after the number
        TextColor prefixColor;
        TextFont font;
        TextColor color;
        std::optional<ParagraphStyle> paragraph;
        bool struckThrough = false;
        int prefixIndex = -1;
        std::array<int, InlineFormatter::styleCount> indices{};
    };

    LineStyle& styleOf(const MarkdownLine& line);
    LineStyle makeStyle(const MarkdownLine& line) const;
    LineStyle listStyle(double hangingIndent, qsizetype indentWidth) const;
    int prefixIndex(LineStyle& style);
    int inlineIndex(LineStyle& style, std::uint8_t inlineStyle);
    void appendRule();

    const MarkdownRenderer& renderer;
    StyledTextBuilder builder;
    InlineFormatter formatter;
    std::map<std::pair<MarkdownLine::Kind, qsizetype>, LineStyle> lineStyles;
    int plainIndex;
};

} // namespace tessaline

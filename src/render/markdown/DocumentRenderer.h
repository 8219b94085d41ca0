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
    /// `expectedLength` in UTF-16 units.
    explicit DocumentRenderer(const MarkdownRenderer& renderer, qsizetype expectedLength = 0);

    /// Appends a line that is not code, as a paragraph without a newline at its end.
    void appendLine(QStringView line);

    /// Appends a plain newline.
    void appendNewline();

    /// Appends lines of a fenced block.
    void appendCode(QStringView code);

    StyledText take();

    /// What was appended since the last `clear`, with the styles of all that was before. A line has
    /// the same styles each time it is rendered.
    const StyledText& current() const { return builder.current(); }
    void removeCarriageReturns() { builder.removeCarriageReturns(); }
    void clear() { builder.clear(); }

    /// The styles of a plain newline and of code.
    int plainStyle() const { return plainIndex; }
    int codeStyle();

    double fontSize() const { return renderer.fontSize; }

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

    MarkdownRenderer renderer;
    StyledTextBuilder builder;
    InlineFormatter formatter;
    std::map<std::pair<MarkdownLine::Kind, qsizetype>, LineStyle> lineStyles;
    int plainIndex;
};

} // namespace tessaline

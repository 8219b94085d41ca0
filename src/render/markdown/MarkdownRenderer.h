#pragma once

#include "render/StyledText.h"
#include "render/TextAttributes.h"

#include <QStringView>

namespace tessaline {

/// Turns Markdown into styled text, line by line: every source line becomes one paragraph, and
/// fenced code is the only construct that spans lines. Linear in its input, which may be anything.
/// A short-lived value: make one for a rendering and drop it. Any thread.
class MarkdownRenderer {
public:
    /// `fontSize` is the body text's size in points.
    explicit MarkdownRenderer(double fontSize);

    /// Renders a whole document.
    StyledText render(QStringView content) const;

    /// The number of words in a Markdown text without its syntax.
    static qsizetype wordCount(QStringView text);

    TextFont baseFont;
    TextColor textColor;
    double fontSize;
};

} // namespace tessaline

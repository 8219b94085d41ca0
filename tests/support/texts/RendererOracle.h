#pragma once

#include "render/StyledText.h"

#include <QStringView>

namespace tessaline {

/// What the renderer and the word counter have to yield, worked out the slow and literal way:
/// expression by expression with ICU, with an attribute set for every UTF-16 unit. The tests
/// compare the hand-written scanners with it. One thread at a time.
class RendererOracle {
public:
    /// `fontSize` is the body text's size in points.
    explicit RendererOracle(double fontSize);

    /// The styled text of a whole document.
    StyledText render(QStringView content) const;

    /// The number of words in a Markdown text without its syntax.
    static qsizetype wordCount(QStringView text);

private:
    double fontSize;
};

} // namespace tessaline

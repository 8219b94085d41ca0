#pragma once

#include "render/TextAttributes.h"

#include <QString>

#include <limits>
#include <vector>

namespace tessaline {

/// A text with attributes: a plain value that knows no fonts, colours or views of the platform.
struct StyledText {
    /// A text has no more UTF-16 units than this.
    static constexpr qsizetype longest = std::numeric_limits<int>::max();

    /// A stretch of text with the same attributes; offsets in UTF-16 units. Small, as a long text
    /// has millions of them.
    struct Run {
        int start = 0;
        int length = 0;
        int style = 0; ///< index into `styles`

        bool operator==(const Run&) const = default;
    };

    QString text;                       ///< UTF-16
    std::vector<Run> runs;              ///< cover the text without gaps; neighbours differ in style
    std::vector<TextAttributes> styles; ///< the distinct attribute sets that runs refer to
    double fontSize = 0.0; ///< of body text, which a view may replace; 0: every font is as it is

    /// The attributes of one of this text's runs.
    const TextAttributes& attributes(const Run& run) const { return styles[run.style]; }
};

/// Takes out the carriage returns, which neither show nor cost a line.
void removeCarriageReturns(StyledText& styled);

/// A piece of a styled text, such as a line. Its runs begin at 0, cover it without gaps and have
/// the whole text's styles.
struct StyledFragment {
    QString text;
    std::vector<StyledText::Run> runs;
};

} // namespace tessaline

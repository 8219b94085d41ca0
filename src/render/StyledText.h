#pragma once

#include "render/TextAttributes.h"

#include <QString>

#include <vector>

namespace tessaline {

/// A text with attributes: a plain value that knows no fonts, colours or views of the platform.
struct StyledText {
    /// A stretch of text with the same attributes; offsets in UTF-16 units.
    struct Run {
        qsizetype start = 0;
        qsizetype length = 0;
        int style = 0; ///< index into `styles`

        bool operator==(const Run&) const = default;
    };

    QString text;                       ///< UTF-16
    std::vector<Run> runs;              ///< cover the text without gaps; neighbours differ in style
    std::vector<TextAttributes> styles; ///< the distinct attribute sets that runs refer to

    /// The attributes of one of this text's runs.
    const TextAttributes& attributes(const Run& run) const { return styles[run.style]; }
};

} // namespace tessaline

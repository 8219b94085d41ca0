#pragma once

#include <cstdint>

namespace tessaline {

/// What a paragraph is, however it looks.
enum class ParagraphKind : std::uint8_t { body, heading, listItem, quote, code, rule };

/// What a paragraph is and how it is set. All lengths are points.
struct ParagraphStyle {
    enum class Alignment : std::uint8_t { natural, center };

    double firstLineHeadIndent = 0.0;
    double headIndent = 0.0;
    double tailIndent = 0.0; ///< negative: measured inwards from the trailing edge
    double spacingBefore = 0.0;
    double spacingAfter = 0.0;
    Alignment alignment = Alignment::natural;
    ParagraphKind kind = ParagraphKind::body;
    int headingLevel = 0; ///< 1 to 6; 0 for what is no heading

    bool operator==(const ParagraphStyle&) const = default;
};

} // namespace tessaline

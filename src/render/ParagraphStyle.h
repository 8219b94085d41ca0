#pragma once

#include <cstdint>

namespace tessaline {

/// How a paragraph is set. All lengths are points.
struct ParagraphStyle {
    enum class Alignment : std::uint8_t { natural, center };

    double firstLineHeadIndent = 0.0;
    double headIndent = 0.0;
    double tailIndent = 0.0; ///< negative: measured inwards from the trailing edge
    double spacingBefore = 0.0;
    double spacingAfter = 0.0;
    Alignment alignment = Alignment::natural;

    bool operator==(const ParagraphStyle&) const = default;
};

} // namespace tessaline

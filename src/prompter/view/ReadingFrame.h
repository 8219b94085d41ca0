#pragma once

#include "settings/ReadingChoices.h"

#include <optional>

namespace tessaline {

struct ReadingOptions;

/// How the reader wants the text before their eyes: a plain value. A new one shows a text as any
/// viewer does.
struct ReadingFrame {
    /// Whether the reader reads at the eye line, where each line of the text comes to, rather than
    /// at the view's top.
    bool isActive = false;

    std::optional<double> eyeLine; ///< share of the view's height; none: the second line
    ReadingGuide guide = ReadingGuide::none;
    double guideLines = 1.0; ///< that the band is high
    bool glides = false;     ///< jumps are eased

    static ReadingFrame of(const ReadingOptions& options);

    bool operator==(const ReadingFrame&) const = default;
};

} // namespace tessaline

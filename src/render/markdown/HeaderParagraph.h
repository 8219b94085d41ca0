#pragma once

#include "render/ParagraphStyle.h"

namespace tessaline {

/// The paragraph style that headers have and nothing else has.
inline constexpr ParagraphStyle headerParagraph{.spacingBefore = 12, .spacingAfter = 6};

} // namespace tessaline

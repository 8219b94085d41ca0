#pragma once

#include "render/ParagraphStyle.h"
#include "render/TextColor.h"
#include "render/TextFont.h"

#include <optional>

namespace tessaline {

/// The attributes of a stretch of styled text. An absent one leaves the choice to the view.
struct TextAttributes {
    std::optional<TextFont> font;
    std::optional<TextColor> foreground;
    std::optional<TextColor> background;
    std::optional<ParagraphStyle> paragraph;
    int strikethrough = 0; ///< 0: absent, 1: a single line

    bool operator==(const TextAttributes&) const = default;
};

} // namespace tessaline

#pragma once

#include "platform/Rect.h"

#include <ostream>

namespace tessaline {

/// Lets a failed assertion show a rectangle. Found by GoogleTest through its name.
inline void PrintTo(const Rect& rect, std::ostream* out) {
    *out << "(" << rect.x << ", " << rect.y << ", " << rect.width << ", " << rect.height << ")";
}

} // namespace tessaline

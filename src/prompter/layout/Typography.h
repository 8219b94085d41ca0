#pragma once

#include <QString>

namespace tessaline {

/// What a text is set in: a plain value. A new one sets it in the desktop's font.
struct Typography {
    QString family;           ///< of all but code; empty: the desktop's
    double lineSpacing = 1.0; ///< a line's height as a multiple of the usual one

    bool operator==(const Typography&) const = default;
};

} // namespace tessaline

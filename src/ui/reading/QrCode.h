#pragma once

#include <QString>

#include <cstddef>
#include <vector>

namespace tessaline {

/// A text as the squares that the camera of a phone reads. A plain value.
struct QrCode {
    /// Of a text in ASCII; an empty one where it is too long or there is none.
    static QrCode of(const QString& text);

    bool isDark(int row, int column) const {
        return dark[std::size_t(row) * std::size_t(size) + std::size_t(column)];
    }

    int size = 0; ///< of a side, in squares
    std::vector<bool> dark{};
};

} // namespace tessaline

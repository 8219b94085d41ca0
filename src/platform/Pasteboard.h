#pragma once

#include <QString>

#include <optional>

namespace tessaline {

/// The system's clipboard. Main thread only.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// The current plain text, or none when the clipboard holds no text.
    virtual std::optional<QString> plainText() const = 0;
};

} // namespace tessaline

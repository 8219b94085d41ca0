#pragma once

#include "render/markdown/MarkerScanner.h"

#include <QStringView>

#include <cstdint>
#include <string>
#include <vector>

namespace tessaline {

/// Finds the inline markup of one line and removes its markers: bold, italic, code and
/// strikethrough. Keeps its buffers between lines, so that one instance serves a whole document.
class InlineFormatter {
public:
    /// A set of inline styles. Code replaces bold and italic where it lies over them.
    enum Style : std::uint8_t { plain = 0, bold = 1, italic = 2, code = 4, strikethrough = 8 };
    static constexpr int styleCount = 16;

    /// A stretch of the line as shown, all in one combination of styles.
    struct Span {
        QStringView text;
        std::uint8_t style;
    };

    InlineFormatter() = default;

    /// A copy has buffers of its own: after a very long line they are large.
    InlineFormatter(const InlineFormatter&) {}
    InlineFormatter& operator=(const InlineFormatter&) = delete;

    /// The line without its markers, as spans whose neighbours differ in style; none for an empty
    /// line. The spans are valid until the next call and as long as `line`.
    const std::vector<Span>& format(QStringView line);

private:
    void applyStyles(unsigned markers);
    void removeMarkers(unsigned markers);
    void removePairs(char16_t marker, MarkerScanner::Kind kind);
    void collectSpans();

    std::u16string characters;
    std::vector<std::uint8_t> styles; ///< one for each of `characters`
    std::vector<Span> spans;
};

} // namespace tessaline

#pragma once

#include <cstdint>
#include <optional>

namespace tessaline {

/// A font as the renderer names it; the view resolves it to a real one.
struct TextFont {
    enum class Family : std::uint8_t { system, monospaced };
    enum class Weight : std::uint8_t { regular, medium, bold };

    Family family = Family::system;
    Weight weight = Weight::medium;
    bool italic = false;
    double size = 0.0; ///< points

    bool operator==(const TextFont&) const = default;
};

/// A colour as the renderer names it: one of three bases at an alpha.
struct TextColor {
    enum class Base : std::uint8_t { text, systemGreen, white };

    Base base = Base::text;
    double alpha = 1.0;

    /// The same base at another alpha.
    constexpr TextColor withAlpha(double newAlpha) const { return {base, newAlpha}; }

    bool operator==(const TextColor&) const = default;
};

/// The prompter's text colour, a warm amber, as calibrated RGB components from 0 to 1.
struct AmberComponents {
    static constexpr double red = 0.82;
    static constexpr double green = 0.71;
    static constexpr double blue = 0.55;
};

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

#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>

namespace tessaline {

/// What a script can be rendered to.
enum class RenderFormat : std::uint8_t { json, html, png };

/// The format that a command line calls by this name; none for an unknown name.
std::optional<RenderFormat> renderFormatNamed(QStringView name);

/// One rendering, as the command line asks for it.
struct RenderRequest {
    static constexpr double largestFontSize = 1000.0;
    static constexpr int leastWidth = 50;
    static constexpr int mostWidth = 10000;

    QString input;  ///< a path, or "-" for standard input
    QString output; ///< a path; empty for standard output
    RenderFormat format = RenderFormat::json;
    double fontSize = 16.0; ///< points, above 0
    int width = 450;        ///< points, margins included

    bool operator==(const RenderRequest&) const = default;
};

} // namespace tessaline

#pragma once

#include "cli/RenderFormat.h"

#include <QString>

namespace tessaline {

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

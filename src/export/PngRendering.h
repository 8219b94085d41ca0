#pragma once

#include "render/StyledText.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessaline {

/// No picture is taller than this many pixels.
inline constexpr int tallestPicture = 32767;

/// Draws a styled text in a column of this width in points, margins included, on black, as the
/// prompter shows it, and encodes it as PNG. Returns none when that is impossible with a one-line
/// description in `error`. Needs a QGuiApplication.
std::optional<QByteArray> pngOf(StyledText styled, int width, QString* error);

} // namespace tessaline

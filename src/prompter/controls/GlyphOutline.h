#pragma once

#include <QFont>
#include <QPainterPath>
#include <QString>

#include <optional>

namespace tessaline {

/// The shape of a control's glyph around the origin, for the glyphs that look different in every
/// font or come as a coloured picture: dash, square, gear, play/pause, clipboard, page. A glyph
/// followed by the text presentation selector is the same glyph. Nothing for any other text: draw
/// that with the font. The size is in logical pixels of so many device pixels each; the weight
/// tells in the dash and the square, whose strokes are whole device pixels wide.
std::optional<QPainterPath> glyphOutline(const QString& text, double points, QFont::Weight weight,
                                         double pixelRatio);

} // namespace tessaline

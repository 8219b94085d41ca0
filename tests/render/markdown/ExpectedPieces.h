#pragma once

#include "render/TextAttributes.h"
#include "support/texts/StyledPiece.h"

#include <QStringView>

#include <optional>
#include <vector>

namespace tessaline {

/// The font size that the renderer's tests use, in points.
constexpr double testFontSize = 20;

/// Renders at `testFontSize`; fails the test when the runs are not as promised.
std::vector<StyledPiece> rendered(QStringView content);

/// The attributes of body text: the system font in medium weight and the text colour.
TextAttributes body(double alpha = 1.0);

/// Body text in bold, at some other size for headers.
TextAttributes bold(double size = testFontSize);

/// The same attributes slanted.
TextAttributes italic(TextAttributes attributes);

/// The same attributes as inline code, a point smaller.
TextAttributes code(TextAttributes attributes);

/// The same attributes struck through, in the text colour at `alpha`.
TextAttributes struck(TextAttributes attributes, double alpha = 0.5);

/// The same attributes with a paragraph style.
TextAttributes in(const ParagraphStyle& paragraph, TextAttributes attributes);

} // namespace tessaline

#pragma once

#include <QColor>

namespace tessaline {

/// How well a text, which may be translucent, stands out from an opaque ground: from 1 to 21, by
/// the ratio of their relative luminances as accessibility guidelines count it.
double contrast(const QColor& ground, const QColor& text);

} // namespace tessaline

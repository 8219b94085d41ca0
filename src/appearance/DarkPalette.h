#pragma once

#include <QPalette>

namespace tessaline {

/// The colours in which style-drawn controls look dark, on every desktop theme.
QPalette darkPalette();

} // namespace tessaline

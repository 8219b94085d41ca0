#pragma once

#include <QBoxLayout>
#include <QWidget>

namespace tessaline {

/// The width, in points, of everything that stands in the settings window's column.
inline constexpr int settingsColumnWidth = 280;

/// Gives a widget a row of so much spacing, without margins.
QHBoxLayout* layOutRow(QWidget& widget, int spacing);

/// Gives a widget a column of so much spacing, without margins.
QVBoxLayout* layOutColumn(QWidget& widget, int spacing);

} // namespace tessaline

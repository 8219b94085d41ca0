#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>

namespace tessaline {

/// A label that shows its text as it is, never as markup.
QLabel* makeLabel(const QString& text, const QFont& font, const QColor& color);

/// The same, breaking its text into lines where needed.
QLabel* makeWrappingLabel(const QString& text, const QFont& font, const QColor& color);

/// An emoji in place of an icon, of this size in points, centred in `width` points.
QLabel* makeIconLabel(const QString& emoji, double points, int width);

/// Gives a label's text another colour.
void setTextColor(QLabel& label, const QColor& color);

} // namespace tessaline

#pragma once

#include <QFont>

namespace tessaline {

/// The desktop's interface font. Sizes here are in points of one logical pixel each, whatever the
/// screen's dots per inch. The font keeps the fraction of its size, but Qt draws and measures it at
/// a whole one: see `drawnPointsOf`. Needs a QGuiApplication.
QFont systemFont(double points, QFont::Weight weight = QFont::Normal);

/// The desktop's fixed-width font, sized in the same way.
QFont monospacedFont(double points, QFont::Weight weight = QFont::Normal);

/// The interface font with digits of one width, so that a number that counts does not wobble; where
/// Qt is older than 6.7, with the digits as the font has them.
QFont monospacedDigitFont(double points, QFont::Weight weight = QFont::Normal);

/// The same font at another size in points of one logical pixel each; points must be positive.
QFont withPoints(QFont font, double points);

/// The font's size in points of one logical pixel each, fraction included.
double pointsOf(const QFont& font);

/// The size at which Qt draws and measures the font, where it has no fraction. Text that is to
/// follow the fraction is laid out in these and drawn under a painter scaled by what is missing.
double drawnPointsOf(const QFont& font);

} // namespace tessaline

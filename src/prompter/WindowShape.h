#pragma once

class QRegion;
class QWidget;

namespace tessaline {

/// Cuts the window to its shape where the desktop cannot show translucent ones: square at the top,
/// round at the bottom unless it is to be square there too. Cuts out a part of it everywhere. Call
/// it when any of this changes.
void updateShape(QWidget& window, bool square, bool showsTranslucency, const QRegion& cutOut);

/// Fills the window's shape with black, with smooth corners. For paint events.
void paintShape(QWidget& window, bool square);

} // namespace tessaline

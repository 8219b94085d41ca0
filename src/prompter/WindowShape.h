#pragma once

class QRegion;
class QWidget;

namespace tessaline {

/// Cuts the window to its shape where the desktop cannot show translucent ones: square at the top,
/// round at the bottom unless it is to be square there too. Cuts out a part of it everywhere. Call
/// it when any of this changes.
void updateShape(QWidget& window, bool square, bool showsTranslucency, const QRegion& cutOut);

/// Fills the window's shape with black, with smooth corners: opaque down to a height, and from
/// there on so that it hides a share of what is below. For paint events.
void paintShape(QWidget& window, bool square, int opaqueHeight, double opacityBelow);

} // namespace tessaline

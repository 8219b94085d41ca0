#pragma once

#include <QIcon>
#include <QImage>

namespace tessaline {

class StatusArea;

/// What the status item is called, for tool tips and screen readers.
QString statusIconDescription();

/// The image of the status item: the system's symbol if it has one, otherwise our own drawing. A
/// template, 18 points wide and high: where the menu bar tints its icons, only its shape counts.
QIcon statusIcon(const StatusArea& area);

/// Our own drawing, of so many pixels to each side. Where nobody tints it, its grey can be told
/// from dark and from light panels.
QImage drawStatusIcon(int pixels);

} // namespace tessaline

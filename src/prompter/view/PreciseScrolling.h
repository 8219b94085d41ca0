#pragma once

#include <QInputDevice>
#include <QWheelEvent>

#include <optional>

namespace tessaline {

/// The points that a trackpad scrolls by; none for the notches of a wheel, for which some drivers
/// tell pixels too, but not any that mean something.
inline std::optional<double> preciseScrolling(const QWheelEvent& event) {
    const bool isTrackpad = event.phase() != Qt::NoScrollPhase ||
                            event.device()->type() == QInputDevice::DeviceType::TouchPad;
    if (!event.hasPixelDelta() || !isTrackpad) return std::nullopt;
    return event.pixelDelta().y();
}

} // namespace tessaline

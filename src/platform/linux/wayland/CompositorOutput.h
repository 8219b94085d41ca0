#pragma once

#include <QRect>
#include <QString>

#include <optional>
#include <vector>

namespace tessaline {

/// One monitor as the compositor tells of it.
struct CompositorOutput {
    QString name; ///< of the connector, such as "eDP-1"
    QString manufacturer;
    QString model;
    QRect area; ///< in the compositor's points

    bool operator==(const CompositorOutput&) const = default;
};

/// The monitor with an area on a display server that takes its areas from the compositor, where it
/// is sure which one that is. `isOnly`: that server has one monitor.
std::optional<CompositorOutput> outputIn(const QRect& area, bool isOnly,
                                         const std::vector<CompositorOutput>& outputs);

} // namespace tessaline

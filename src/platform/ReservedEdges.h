#pragma once

#include <QMarginsF>

#include <functional>

class QScreen;

namespace tessaline {

/// What panels and docks keep of each screen for themselves, where the toolkit cannot tell.
class ReservedEdges {
public:
    virtual ~ReservedEdges() = default;

    /// How many points they keep along each edge of this screen.
    virtual QMarginsF of(const QScreen& screen) const = 0;

    /// Called after answers have changed.
    std::function<void()> onChange;
};

} // namespace tessaline

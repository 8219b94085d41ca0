#pragma once

#include "settings/ReadingChoices.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace tessaline {

/// Turns an area over. What is written at a place is seen at the mirrored one, and what is seen at
/// a place is written at the mirrored one.
class Mirror {
public:
    Mirror(Mirroring mirroring, const QSizeF& size);

    QPointF mirrored(const QPointF& point) const { return transform.map(point); }
    QRectF mirrored(const QRectF& rectangle) const { return transform.mapRect(rectangle); }

    bool isUpsideDown() const { return transform.m22() < 0.0; }

    /// For whoever paints.
    const QTransform& asTransform() const { return transform; }

private:
    QTransform transform;
};

} // namespace tessaline

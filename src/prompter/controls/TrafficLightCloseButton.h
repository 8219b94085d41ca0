#pragma once

#include "prompter/controls/TrackedButton.h"

#include <QColor>

namespace tessaline {

/// A window's red close light: a circle as large as the bounds allow, centred in them, with a cross
/// under the pointer.
class TrafficLightCloseButton final : public TrackedButton {
    Q_OBJECT

public:
    explicit TrafficLightCloseButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

    // The circle at rest and while pressed, and the cross. Whoever changes them on a visible button
    // calls update().
    QColor circleColor = QColor::fromRgbF(1.0F, 0.373F, 0.341F);
    QColor circleColorPressed = QColor::fromRgbF(0.83F, 0.25F, 0.22F);
    QColor crossColor = QColor::fromRgbF(0.3F, 0.0F, 0.0F, 0.9F);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessaline

#pragma once

#include <QSlider>

namespace tessaline {

/// A horizontal slider over points with fractions. A press on its groove moves the knob there; an
/// arrow key moves it by one point or one step, Page Up and Page Down by a tenth of the range.
class PointSlider : public QSlider {
    Q_OBJECT

public:
    /// A slider of this width, in points. The name is for screen readers.
    PointSlider(const QString& accessibleName, int width, QWidget* parent = nullptr);

    double minimumPoints() const { return lowest; }
    double maximumPoints() const { return highest; }

    /// Sets the range; the value is brought into it. Emits nothing.
    void setLimits(double minimum, double maximum);

    /// The user gets multiples of so many points only.
    void setStep(double points);
    double step() const { return snap > 0.0 ? snap : 1.0; }

    /// Exactly what was set last or, after the user moved the knob, where that is.
    double points() const { return exact; }

    /// Brings the value into the range and shows it. Emits nothing.
    void setPoints(double value);

    /// Tells that values up to this far from 0 do not last, so that keys step over them. 0: none.
    void setDeadZone(double points) { deadZone = points; }

    /// Moves the knob as the user does.
    void moveTo(double value);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The user moved the knob, by mouse, keys or a screen reader.
    void moved();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void adopt(int steps);
    void leaveDeadZone(int action);
    QRect knobRect() const;

    double lowest = 0.0;
    double highest = 0.0;
    double exact = 0.0;
    double deadZone = 0.0;
    double snap = 0.0; ///< the step; 0: none
};

} // namespace tessaline

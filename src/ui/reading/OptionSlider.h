#pragma once

#include <QWidget>

namespace tessaline {

class PointSlider;
class SliderRow;

/// A slider for a number among the reading options, below its name and its value in words.
class OptionSlider : public QWidget {
    Q_OBJECT

public:
    struct Range {
        double least = 0.0;
        double most = 0.0;
        double step = 1.0;
    };

    /// The slider and the label of the value have the object names `reading_…Slider` and
    /// `reading_…Value`.
    OptionSlider(const QString& name, const QString& identifier, const Range& range);

    void show(double number, const QString& text);

    double number() const;

Q_SIGNALS:
    /// The user chose another number.
    void chosen();
    /// The user let the knob go.
    void released();

private:
    SliderRow* const row;
    PointSlider* const slider;
};

} // namespace tessaline

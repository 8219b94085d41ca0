#include "ui/reading/OptionSlider.h"

#include "ui/controls/PointSlider.h"
#include "ui/controls/Rows.h"
#include "ui/controls/SliderRow.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int spacing = 10;
constexpr int sliderWidth = 260;

} // namespace

OptionSlider::OptionSlider(const QString& name, const QString& identifier, const Range& range)
    : row(new SliderRow(name, u"reading_%1Value"_s.arg(identifier)))
    , slider(new PointSlider(name, sliderWidth)) {
    slider->setObjectName(u"reading_%1Slider"_s.arg(identifier));
    slider->setLimits(range.least, range.most);
    slider->setStep(range.step);
    connect(slider, &PointSlider::moved, this, &OptionSlider::chosen);
    connect(slider, &PointSlider::sliderReleased, this, &OptionSlider::released);
    QVBoxLayout* column = layOutColumn(*this, spacing);
    column->addWidget(row);
    column->addWidget(slider, 0, Qt::AlignLeading);
}

void OptionSlider::show(double number, const QString& text) {
    slider->setPoints(number);
    row->setValue(text);
}

double OptionSlider::number() const {
    return slider->points();
}

} // namespace tessaline

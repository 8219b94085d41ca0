#include "ui/controls/SliderRow.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "ui/controls/Rows.h"

namespace tessaline {

namespace {

constexpr int gap = 4;

} // namespace

SliderRow::SliderRow(const QString& name, const QString& valueName, QWidget* parent)
    : QWidget(parent)
    , valueLabel(makeLabel({}, monospacedDigitFont(13), SystemPalette::secondaryLabel)) {
    setFixedWidth(settingsColumnWidth);
    QHBoxLayout* row = layOutRow(*this, gap);
    row->addWidget(makeLabel(name, systemFont(13), SystemPalette::label));
    row->addSpacing(gap);
    row->addStretch();
    valueLabel->setObjectName(valueName);
    valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row->addWidget(valueLabel);
}

void SliderRow::setValue(const QString& text) {
    valueLabel->setText(text);
}

} // namespace tessaline

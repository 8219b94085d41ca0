#include "ui/controls/LabelledRow.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "ui/controls/Rows.h"

namespace tessaline {

namespace {

constexpr int gap = 8;

} // namespace

LabelledRow::LabelledRow(const QString& name, QWidget* control, QWidget* parent) : QWidget(parent) {
    setFixedWidth(settingsColumnWidth);
    QHBoxLayout* row = layOutRow(*this, gap);
    QLabel* label = makeLabel(name, systemFont(13), SystemPalette::label);
    label->setBuddy(control);
    row->addWidget(label);
    row->addStretch();
    row->addWidget(control);
}

} // namespace tessaline

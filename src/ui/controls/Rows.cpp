#include "ui/controls/Rows.h"

namespace tessaline {

QHBoxLayout* layOutRow(QWidget& widget, int spacing) {
    auto* row = new QHBoxLayout(&widget);
    row->setContentsMargins({});
    row->setSpacing(spacing);
    return row;
}

QVBoxLayout* layOutColumn(QWidget& widget, int spacing) {
    auto* column = new QVBoxLayout(&widget);
    column->setContentsMargins({});
    column->setSpacing(spacing);
    return column;
}

} // namespace tessaline

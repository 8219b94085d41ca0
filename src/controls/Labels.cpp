#include "controls/Labels.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"

namespace tessaline {

QLabel* makeLabel(const QString& text, const QFont& font, const QColor& color) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setFont(font);
    setTextColor(*label, color);
    return label;
}

QLabel* makeWrappingLabel(const QString& text, const QFont& font, const QColor& color) {
    QLabel* label = makeLabel(text, font, color);
    label->setWordWrap(true);
    return label;
}

QLabel* makeIconLabel(const QString& emoji, double points, int width) {
    QLabel* label = makeLabel(emoji, systemFont(points), SystemPalette::label);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedWidth(width);
    return label;
}

void setTextColor(QLabel& label, const QColor& color) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, color);
    label.setPalette(palette);
}

} // namespace tessaline

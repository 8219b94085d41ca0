#pragma once

#include "appearance/PointFont.h"

#include <QLabel>
#include <QString>
#include <QWidget>

#include <cmath>
#include <stdexcept>
#include <utility>

namespace tessaline {

/// The size, in whole points, and the weight of a text.
using TextType = std::pair<int, QFont::Weight>;

inline TextType typeOf(const QWidget& widget) {
    return {int(std::lround(pointsOf(widget.font()))), widget.font().weight()};
}

/// The label of a window that reads so.
inline QLabel& labelReading(const QWidget& window, const QString& text) {
    for (QLabel* label : window.findChildren<QLabel*>())
        if (label->text() == text) return *label;
    throw std::runtime_error(text.toStdString());
}

} // namespace tessaline

#pragma once

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "ui/controls/Bezel.h"

#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

namespace tessaline {

/// A box of Qt's whose value is typed or stepped, in our look. The value counts once it is
/// complete, and the wheel turns it only while it has the keyboard: over the others it scrolls
/// their window.
template <typename Box>
class Field : public Box {
public:
    /// A field of this width, in points. The name is for screen readers.
    Field(const QString& accessibleName, int width) {
        Box::setAccessibleName(accessibleName);
        Box::setFont(systemFont(13));
        Box::setFixedWidth(width);
        Box::setFocusPolicy(Qt::StrongFocus);
        Box::setKeyboardTracking(false);
        Box::setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QPalette onBezel = Box::lineEdit()->palette();
        onBezel.setColor(QPalette::Base, Qt::transparent);
        Box::lineEdit()->setPalette(onBezel);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        drawBezel(painter, *this, SystemPalette::controlBackground, false);
        QStyleOptionSpinBox option;
        Box::initStyleOption(&option);
        const QRectF up =
            Box::style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
        drawArrows(painter, {up.center().x(), Box::height() / 2.0});
    }

    void wheelEvent(QWheelEvent* event) override {
        if (Box::hasFocus()) {
            Box::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

} // namespace tessaline

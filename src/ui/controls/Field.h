#pragma once

#include "appearance/PointFont.h"

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
    }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (Box::hasFocus()) {
            Box::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

} // namespace tessaline

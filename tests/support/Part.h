#pragma once

#include <QString>
#include <QWidget>

namespace tessaline {

/// The control of this name inside a widget, or null.
template <typename Control = QWidget>
Control* part(const QWidget& whole, const char* name) {
    return whole.findChild<Control*>(QString::fromLatin1(name));
}

} // namespace tessaline

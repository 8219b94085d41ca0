#pragma once

#include <QDebug>
#include <QString>

#include <ostream>

/// Lets a failed assertion show a string as text. Found by GoogleTest through its name.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << QDebug::toString(text).toStdString();
}

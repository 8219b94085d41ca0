#pragma once

#include <QByteArray>

namespace tessaline {

/// The shortest decimal text that stands for this finite number, without an exponent.
QByteArray plainNumber(double value);

} // namespace tessaline

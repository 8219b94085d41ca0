#include "settings/PlainNumber.h"

#include <QLocale>

namespace tessaline {

QByteArray plainNumber(double value) {
    return QByteArray::number(value, 'f', QLocale::FloatingPointShortest);
}

} // namespace tessaline

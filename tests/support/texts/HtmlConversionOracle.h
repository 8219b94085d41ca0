#pragma once

#include <QString>

namespace tessaline {

/// What the conversion of a note's HTML has to yield, worked out with ICU's regular expressions.
QString htmlConversionByIcu(const QString& html);

} // namespace tessaline

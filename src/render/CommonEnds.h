#pragma once

#include <QStringView>

namespace tessaline {

/// How much two texts share, in UTF-16 units. The two ends do not overlap in either.
struct CommonEnds {
    qsizetype beginning = 0;
    qsizetype end = 0;

    static CommonEnds of(QStringView one, QStringView other);
};

} // namespace tessaline

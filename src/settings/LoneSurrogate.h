#pragma once

#include <QStringView>

namespace tessaline {

/// Whether the unit at `index` is half of a surrogate pair whose other half is missing.
inline bool isLoneSurrogate(QStringView text, qsizetype index) {
    const QChar unit = text[index];
    if (unit.isHighSurrogate())
        return index + 1 == text.size() || !text[index + 1].isLowSurrogate();
    return unit.isLowSurrogate() && (index == 0 || !text[index - 1].isHighSurrogate());
}

} // namespace tessaline

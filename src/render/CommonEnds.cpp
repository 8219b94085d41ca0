#include "render/CommonEnds.h"

#include <algorithm>

namespace tessaline {

CommonEnds CommonEnds::of(QStringView one, QStringView other) {
    const qsizetype shorter = std::min(one.size(), other.size());
    const qsizetype beginning =
        std::mismatch(one.begin(), one.begin() + shorter, other.begin()).first - one.begin();
    const qsizetype rest = shorter - beginning;
    const qsizetype end =
        std::mismatch(one.rbegin(), one.rbegin() + rest, other.rbegin()).first - one.rbegin();
    return {beginning, end};
}

} // namespace tessaline

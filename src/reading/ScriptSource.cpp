#include "reading/ScriptSource.h"

#include <algorithm>

namespace tessaline {

StyledFragment fragmentOf(QStringView text, const std::vector<StyledText::Run>& runs,
                          qsizetype begin, qsizetype length) {
    StyledFragment fragment{text.sliced(begin, length).toString(), {}};
    if (length == 0) return fragment;
    const qsizetype end = begin + length;
    auto run = std::upper_bound(runs.begin(), runs.end(), begin,
                                [](qsizetype offset, const StyledText::Run& candidate) {
                                    return offset < candidate.start;
                                }) -
               1;
    for (; run != runs.end() && run->start < end; ++run) {
        const qsizetype from = std::max<qsizetype>(run->start, begin);
        const qsizetype to = std::min<qsizetype>(run->start + run->length, end);
        fragment.runs.push_back({int(from - begin), int(to - from), run->style});
    }
    return fragment;
}

} // namespace tessaline

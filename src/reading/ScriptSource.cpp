#include "reading/ScriptSource.h"

#include <algorithm>
#include <utility>

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

void removeCarriageReturns(QString& text, std::vector<StyledText::Run>& runs) {
    if (!text.contains(u'\r')) return;
    QString kept;
    kept.reserve(text.size());
    std::vector<StyledText::Run> keptRuns;
    keptRuns.reserve(runs.size());
    for (const auto& run : runs) {
        const qsizetype start = kept.size();
        for (const QChar c : QStringView(text).sliced(run.start, run.length)) {
            if (c != u'\r') kept += c;
        }
        if (kept.size() > start)
            keptRuns.push_back({int(start), int(kept.size() - start), run.style});
    }
    text = std::move(kept);
    runs = std::move(keptRuns);
}

} // namespace tessaline

#include "render/StyledText.h"

#include <utility>

namespace tessaline {

void removeCarriageReturns(StyledText& styled) {
    if (!styled.text.contains(u'\r')) return;
    QString text;
    text.reserve(styled.text.size());
    std::vector<StyledText::Run> runs;
    runs.reserve(styled.runs.size());
    for (const auto& run : styled.runs) {
        const qsizetype start = text.size();
        for (const QChar c : QStringView(styled.text).sliced(run.start, run.length)) {
            if (c != u'\r') text += c;
        }
        if (text.size() > start) runs.push_back({int(start), int(text.size() - start), run.style});
    }
    styled.text = std::move(text);
    styled.runs = std::move(runs);
}

} // namespace tessaline

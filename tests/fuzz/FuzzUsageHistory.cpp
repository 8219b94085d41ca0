#include "FuzzFailure.h"

#include "analytics/EventDecoder.h"
#include "analytics/HistoryText.h"
#include "support/JoinedPieces.h"

#include <cstddef>
#include <cstdint>
#include <vector>

using namespace tessaline;

namespace {

std::vector<AnalyticsEvent> decode(const QByteArray& bytes, bool& isHistory) {
    std::vector<AnalyticsEvent> events;
    isHistory =
        decodeEvents(bytes, [&events](const AnalyticsEvent& event) { events.push_back(event); });
    return events;
}

QByteArray encode(const std::vector<AnalyticsEvent>& events) {
    HistoryText text;
    for (const AnalyticsEvent& event : events)
        text.append(event);
    return joined(text.pieces());
}

} // namespace

/// What can be read is written so that it can be read again, and as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    bool isHistory = false;
    const auto events = decode(bytes, isHistory);
    if (!isHistory) return 0;
    const QByteArray written = encode(events);
    const auto again = decode(written, isHistory);
    if (!isHistory || again.size() != events.size())
        reportFuzzFailure("a history cannot be read again", QString::fromUtf8(bytes));
    if (encode(again) != written)
        reportFuzzFailure("a history changes when it is read again", QString::fromUtf8(bytes));
    return 0;
}

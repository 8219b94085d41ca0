#include "FuzzFailure.h"

#include "analytics/HistoryText.h"
#include "support/JoinedPieces.h"

#include <QTimeZone>

#include <cstddef>
#include <cstdint>
#include <optional>

using namespace tessaline;

namespace {

/// The history as it is written again; none when it cannot be read.
std::optional<QByteArray> rewritten(const QByteArray& bytes) {
    const QDateTime longAgo(QDate(-1, 1, 1), QTime(0, 0), QTimeZone::utc());
    bool leftOut = false;
    QString error;
    const auto text = HistoryText::read(bytes, longAgo, leftOut, error);
    if (!text) return std::nullopt;
    return joined(text->pieces());
}

} // namespace

/// What can be read is written so that it can be read again, and as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto written = rewritten(bytes);
    if (!written) return 0;
    const auto again = rewritten(*written);
    if (!again) reportFuzzFailure("a history cannot be read again", QString::fromUtf8(bytes));
    if (*again != *written)
        reportFuzzFailure("a history changes when it is read again", QString::fromUtf8(bytes));
    return 0;
}

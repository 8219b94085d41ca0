#include "ui/reading/QrCode.h"

#include <qrencode.h>

#include <memory>

namespace tessaline {

QrCode QrCode::of(const QString& text) {
    constexpr int smallestVersion = 0;
    constexpr int caseSensitive = 1;
    if (text.isEmpty()) return {};
    const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
        QRcode_encodeString(text.toLatin1().constData(), smallestVersion, QR_ECLEVEL_M, QR_MODE_8,
                            caseSensitive),
        &QRcode_free);
    if (!code) return {};
    QrCode result;
    result.size = code->width;
    const auto count = std::size_t(code->width) * std::size_t(code->width);
    for (std::size_t i = 0; i < count; ++i)
        result.dark.push_back((code->data[i] & 1U) != 0); // the other bits tell of its making
    return result;
}

} // namespace tessaline

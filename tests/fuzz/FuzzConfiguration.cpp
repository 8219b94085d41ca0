#include "FuzzFailure.h"

#include "settings/SettingsCodec.h"

using namespace tessaline;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto settings = decodeSettings(bytes);
    if (!settings) return 0;
    const QString text = QString::fromLatin1(bytes);
    const auto isSpeed = [](double value) { return value <= PersistedSettings::maxScrollSpeed; };
    if (!isSpeed(settings->scrollSpeed) || !isSpeed(settings->lastNonZeroScrollSpeed))
        reportFuzzFailure("a speed beyond the greatest", text);
    if (!settings->enabledSourceTypes.contains(SourceType::clipboard))
        reportFuzzFailure("no clipboard", text);
    if (!settings->enabledSourceTypes.contains(settings->activeSourceType))
        reportFuzzFailure("an active source that is not enabled", text);
    const auto written = encodeSettings(*settings);
    if (!written) reportFuzzFailure("what was read cannot be written", text);
    if (decodeSettings(*written) != settings)
        reportFuzzFailure("written otherwise than read", text);
    return 0;
}

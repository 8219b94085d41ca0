#include "analytics/TDSignal.h"

#include "analytics/Iso8601.h"
#include "settings/JsonWriter.h"

#include <cmath>

namespace tessaline {

std::optional<QByteArray> encode(const TDSignal& signal) {
    if (signal.floatValue && !std::isfinite(*signal.floatValue)) return std::nullopt;
    QByteArray bytes;
    JsonWriter json(bytes, JsonWriter::Layout::compact);
    const auto member = [&json](QByteArrayView name, const QString& text) {
        json.key(name);
        json.string(text);
    };
    json.beginObject();
    member("receivedAt", QString::fromLatin1(toIso8601(signal.receivedAt)));
    member("appID", signal.appID);
    member("clientUser", signal.clientUser);
    member("sessionID", signal.sessionID);
    member("type", signal.type);
    if (signal.floatValue) {
        json.key("floatValue");
        json.real(*signal.floatValue);
    }
    json.key("payload");
    json.beginObject();
    for (auto entry = signal.payload.begin(); entry != signal.payload.end(); ++entry) {
        json.key(entry.key());
        json.string(entry.value());
    }
    json.endObject();
    member("isTestMode", signal.isTestMode);
    json.endObject();
    return bytes;
}

} // namespace tessaline

#include "analytics/TDSignal.h"

#include "analytics/Iso8601.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <utility>

namespace tessaline {

using nlohmann::ordered_json;

std::optional<QByteArray> encode(const TDSignal& signal) {
    if (signal.floatValue && !std::isfinite(*signal.floatValue)) return std::nullopt;
    ordered_json payload = ordered_json::object();
    for (auto entry = signal.payload.begin(); entry != signal.payload.end(); ++entry)
        payload[entry.key().toStdString()] = entry.value().toStdString();

    ordered_json object{{"receivedAt", toIso8601(signal.receivedAt).toStdString()},
                        {"appID", signal.appID.toStdString()},
                        {"clientUser", signal.clientUser.toStdString()},
                        {"sessionID", signal.sessionID.toStdString()},
                        {"type", signal.type.toStdString()}};
    if (signal.floatValue) object["floatValue"] = *signal.floatValue;
    object["payload"] = std::move(payload);
    object["isTestMode"] = signal.isTestMode.toStdString();
    return QByteArray::fromStdString(object.dump());
}

} // namespace tessaline

#include "analytics/HistoryText.h"

#include "analytics/Iso8601.h"

#include <nlohmann/json.hpp>

#include <string>

namespace tessaline {

namespace {

constexpr QByteArrayView end("\n]\n");

/// A string as JSON writes it, in quotes.
std::string quoted(const QString& text) {
    return nlohmann::json(text.toStdString()).dump();
}

} // namespace

void HistoryText::append(const AnalyticsEvent& event) {
    text.chop(end.size());
    if (!empty) text += ",";
    text += "\n  {\n    \"name\": ";
    text += quoted(event.name);
    text += ",\n    \"timestamp\": ";
    text += quoted(toIso8601(event.timestamp));
    text += ",\n    \"properties\": {";
    for (auto property = event.properties.begin(); property != event.properties.end(); ++property) {
        text += property == event.properties.begin() ? "\n      " : ",\n      ";
        text += quoted(property.key());
        text += ": ";
        text += quoted(property.value());
    }
    text += event.properties.isEmpty() ? "}\n  }" : "\n    }\n  }";
    text += end;
    empty = false;
}

} // namespace tessaline

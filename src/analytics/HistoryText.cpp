#include "analytics/HistoryText.h"

#include "analytics/Iso8601.h"

#include <nlohmann/json.hpp>

#include <string>

namespace tessaline {

namespace {

constexpr QByteArrayView end("\n]\n");

constexpr qsizetype pieceSize = qsizetype{64} << 10;
constexpr int fastest = 1; ///< events are so much alike that more effort saves little

/// A string as JSON writes it, in quotes.
std::string quoted(const QString& text) {
    return nlohmann::json(text.toStdString()).dump();
}

} // namespace

void HistoryText::append(const AnalyticsEvent& event) {
    if (!empty) latest += ",";
    latest += "\n  {\n    \"name\": ";
    latest += quoted(event.name);
    latest += ",\n    \"timestamp\": ";
    latest += quoted(toIso8601(event.timestamp));
    latest += ",\n    \"properties\": {";
    for (auto property = event.properties.begin(); property != event.properties.end(); ++property) {
        latest += property == event.properties.begin() ? "\n      " : ",\n      ";
        latest += quoted(property.key());
        latest += ": ";
        latest += quoted(property.value());
    }
    latest += event.properties.isEmpty() ? "}\n  }" : "\n    }\n  }";
    empty = false;
    packWhenLarge();
}

void HistoryText::packWhenLarge() {
    if (latest.size() < pieceSize) return;
    packedSize += latest.size();
    packed.push_back(qCompress(latest, fastest));
    packed.back().squeeze();
    latest.clear();
}

FilePieces HistoryText::pieces() const {
    return [this, next = std::size_t{0}]() mutable { return piece(next++); };
}

QByteArray HistoryText::piece(std::size_t index) const {
    if (index < packed.size()) return qUncompress(packed[index]);
    return index == packed.size() ? QByteArray(latest).append(end) : QByteArray();
}

qsizetype HistoryText::size() const {
    return packedSize + latest.size() + end.size();
}

} // namespace tessaline

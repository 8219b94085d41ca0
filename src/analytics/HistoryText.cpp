#include "analytics/HistoryText.h"

#include "analytics/Iso8601.h"
#include "settings/JsonWriter.h"

namespace tessaline {

namespace {

constexpr QByteArrayView end("\n]\n");

constexpr qsizetype pieceSize = qsizetype{64} << 10;
constexpr int fastest = 1; ///< events are so much alike that more effort saves little

} // namespace

void HistoryText::append(const AnalyticsEvent& event) {
    JsonWriter json = JsonWriter::inside(latest, 1, empty);
    json.beginObject();
    json.key("name");
    json.string(event.name);
    json.key("timestamp");
    json.string(toIso8601(event.timestamp));
    json.key("properties");
    json.beginObject();
    for (auto property = event.properties.begin(); property != event.properties.end(); ++property) {
        json.key(property.key());
        json.string(property.value());
    }
    json.endObject();
    json.endObject();
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

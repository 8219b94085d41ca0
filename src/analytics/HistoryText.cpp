#include "analytics/HistoryText.h"

#include "analytics/Iso8601.h"
#include "analytics/UsageRecorder.h"
#include "settings/JsonCursor.h"
#include "settings/JsonWriter.h"

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Both as it stands between the quotes.
QByteArrayView written(QByteArrayView text) {
    return text;
}

QByteArray written(const QString& text) {
    QByteArray json;
    JsonWriter(json, JsonWriter::Layout::compact).string(text);
    return json.mid(1, json.size() - 2);
}

constexpr QByteArrayView end("\n]\n");

constexpr qsizetype pieceSize = qsizetype{256} << 10;
constexpr int fastest = 1; ///< events are so much alike that more effort saves little

/// An event of a file. What is only written again stays as it is there.
struct WrittenEvent {
    using Properties = std::vector<std::pair<QByteArrayView, QByteArrayView>>;

    std::optional<QByteArrayView> name;
    std::optional<QDateTime> timestamp;
    std::optional<Properties> properties;

    /// False when it is none, which ends the reading.
    bool take(JsonCursor& json, qint64 number);

private:
    bool takeMember(JsonCursor& json, const JsonText& key);
    bool takeProperties(JsonCursor& json);
};

bool takeText(JsonCursor& json, JsonText& text) {
    if (json.kind() != JsonCursor::Kind::text) return false;
    text = json.takeText();
    return text.isUnicode();
}

bool WrittenEvent::take(JsonCursor& json, qint64 number) {
    if (json.kind() != JsonCursor::Kind::object)
        return json.refuse(u"Event %1 is not an object"_s.arg(number));
    json.enter();
    while (const auto key = json.nextMember())
        if (!takeMember(json, *key))
            return json.refuse(u"Invalid value for \"%1\" of event %2"_s.arg(
                key->decoded(), QString::number(number)));
    return (name && timestamp && properties) ||
           json.refuse(u"Missing value of event %1"_s.arg(number));
}

bool WrittenEvent::takeMember(JsonCursor& json, const JsonText& key) {
    if (key.is("properties")) return takeProperties(json);
    const bool isName = key.is("name");
    if (!isName && !key.is("timestamp")) {
        json.skip();
        return true;
    }
    JsonText text;
    if (!takeText(json, text)) return false;
    if (isName) {
        name = text.written;
    } else {
        timestamp = fromIso8601(text.hasEscapes ? text.decoded().toUtf8() : text.written);
    }
    return isName || timestamp;
}

bool WrittenEvent::takeProperties(JsonCursor& json) {
    if (json.kind() != JsonCursor::Kind::object) return false;
    properties.emplace();
    json.enter();
    while (const auto key = json.nextMember()) {
        JsonText value;
        if (!key->isUnicode() || !takeText(json, value)) return false;
        properties->emplace_back(key->written, value.written);
    }
    return true;
}

} // namespace

std::optional<HistoryText> HistoryText::read(const QByteArray& file, const QDateTime& oldest,
                                             bool& leftOut, QString& error) {
    HistoryText text;
    JsonCursor json(file);
    if (json.kind() != JsonCursor::Kind::array) json.refuse(u"The JSON is not an array"_s);
    json.enter();
    leftOut = false;
    for (qint64 number = 1; json.nextElement(); ++number) {
        WrittenEvent event;
        if (!event.take(json, number)) break;
        if (event.timestamp > oldest) {
            text.append(*event.name, *event.timestamp, *event.properties);
        } else {
            leftOut = true;
        }
    }
    if (!json.finish(&error)) return std::nullopt;
    return text;
}

void HistoryText::append(const AnalyticsEvent& event) {
    append(event.name, event.timestamp, event.properties.asKeyValueRange());
}

template <typename Text, typename Properties>
void HistoryText::append(const Text& name, const QDateTime& timestamp,
                         const Properties& properties) {
    if (!std::exchange(empty, false)) latest += ',';
    latest += "\n  {\n    \"name\": \"";
    latest += written(name);
    latest += "\",\n    \"timestamp\": \"";
    latest += toIso8601(timestamp);
    latest += "\",\n    \"properties\": {";
    const char* separator = "\n      \"";
    for (const auto& [key, value] : properties) {
        latest += separator;
        latest += written(key);
        latest += "\": \"";
        latest += written(value);
        separator = "\",\n      \"";
    }
    latest += properties.begin() == properties.end() ? "}\n  }" : "\"\n    }\n  }";
    if (latest.size() >= pieceSize) pack();
}

void HistoryText::pack() {
    packedSize += latest.size();
    packed.push_back(qCompress(latest, fastest));
    packed.back().squeeze();
    latest.resize(0);
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

#include "settings/JsonWriter.h"

#include "settings/JsonValue.h"
#include "settings/LoneSurrogate.h"
#include "settings/PlainNumber.h"

#include <QLocale>

#include <cmath>

namespace tessaline {

namespace {

constexpr qsizetype spacesPerLevel = 2;

QByteArray unitEscape(char16_t unit) {
    return "\\u" + QByteArray::number(unit, 16).rightJustified(4, '0');
}

QByteArray escape(char16_t unit) {
    switch (unit) {
    case u'"':
        return "\\\"";
    case u'\\':
        return "\\\\";
    case u'\n':
        return "\\n";
    case u'\r':
        return "\\r";
    case u'\t':
        return "\\t";
    default:
        return unitEscape(unit);
    }
}

QByteArray shortEscape(char16_t unit) {
    return unit == u'\b' ? "\\b" : unit == u'\f' ? "\\f" : escape(unit);
}

bool needsEscape(char16_t unit) {
    return unit < 0x20 || unit == u'"' || unit == u'\\';
}

/// Appends the text as UTF-8, with `escaped` in the place of every unit at an index that `matches`.
template <typename Matches>
void appendEscaped(QByteArray& out, QStringView text, QByteArray (*escaped)(char16_t),
                   const Matches& matches) {
    qsizetype done = 0;
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (!matches(index)) continue;
        out += text.sliced(done, index - done).toUtf8();
        out += escaped(text[index].unicode());
        done = index + 1;
    }
    out += text.sliced(done).toUtf8();
}

/// Whether its digits make a number of bearable length without an exponent.
bool isShort(double value) {
    return value == 0 || (std::abs(value) < 1e15 && std::abs(value) >= 1e-4);
}

} // namespace

void JsonWriter::key(QByteArrayView plainName) {
    startItem();
    out += '"';
    out += plainName;
    out += layout == Layout::compact ? "\":" : "\": ";
    hasKey = true;
}

void JsonWriter::key(QStringView name) {
    startItem();
    appendQuoted(name);
    out += layout == Layout::compact ? ":" : ": ";
    hasKey = true;
}

void JsonWriter::number(double value) {
    startValue();
    out += plainNumber(value);
}

void JsonWriter::real(double value) {
    startValue();
    if (!isShort(value)) {
        out += QByteArray::number(value, 'e', QLocale::FloatingPointShortest);
    } else {
        if (value == 0 && std::signbit(value)) out += '-';
        out += plainNumber(value);
        if (value == std::floor(value)) out += ".0";
    }
}

void JsonWriter::boolean(bool value) {
    startValue();
    out += value ? "true" : "false";
}

void JsonWriter::null() {
    startValue();
    out += "null";
}

void JsonWriter::string(QStringView text) {
    startValue();
    appendQuoted(text);
}

void JsonWriter::exactString(QStringView text) {
    startValue();
    appendQuotedExactly(text);
}

void JsonWriter::value(const JsonValue& value) {
    if (const auto* flag = value.as<bool>()) {
        boolean(*flag);
    } else if (const auto* amount = value.as<double>()) {
        isShort(*amount) ? number(*amount) : real(*amount);
    } else if (const auto* text = value.as<QString>()) {
        string(*text);
    } else if (const auto* array = value.as<JsonValue::Array>()) {
        beginArray();
        for (const JsonValue& element : *array)
            this->value(element);
        endArray();
    } else if (const auto* object = value.as<JsonValue::Object>()) {
        beginObject();
        for (const JsonMember& member : *object) {
            key(member.name);
            this->value(member.value);
        }
        endObject();
    } else {
        null();
    }
}

void JsonWriter::members(QByteArrayView written) {
    out += written;
}

void JsonWriter::begin(char bracket) {
    startValue();
    out += bracket;
    ++depth;
    isFirst = true;
}

void JsonWriter::end(char bracket) {
    --depth;
    if (!isFirst) startLine();
    isFirst = false;
    out += bracket;
    if (depth == 0 && layout == Layout::indented) out += '\n';
}

void JsonWriter::startValue() {
    if (!hasKey && depth > 0) startItem();
    hasKey = false;
}

void JsonWriter::startItem() {
    if (!isFirst) out += ',';
    isFirst = false;
    startLine();
}

void JsonWriter::startLine() {
    if (layout == Layout::compact) return;
    out += '\n';
    out.append(spacesPerLevel * depth, ' ');
}

void JsonWriter::appendQuoted(QStringView text) {
    out += '"';
    appendEscaped(out, text, shortEscape,
                  [text](qsizetype index) { return needsEscape(text[index].unicode()); });
    out += '"';
}

void JsonWriter::appendQuotedExactly(QStringView text) {
    out += '"';
    appendEscaped(out, text, escape, [text](qsizetype index) {
        return needsEscape(text[index].unicode()) || isLoneSurrogate(text, index);
    });
    out += '"';
}

} // namespace tessaline

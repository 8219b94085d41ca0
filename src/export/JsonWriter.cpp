#include "export/JsonWriter.h"

#include "export/LoneSurrogate.h"
#include "export/PlainNumber.h"

namespace tessaline {

namespace {

constexpr qsizetype spacesPerLevel = 2;

void appendEscape(QByteArray& out, char16_t unit) {
    out += "\\u" + QByteArray::number(unit, 16).rightJustified(4, '0');
}

void appendEscaped(QByteArray& out, char16_t unit) {
    switch (unit) {
    case u'"':
        out += "\\\"";
        break;
    case u'\\':
        out += "\\\\";
        break;
    case u'\n':
        out += "\\n";
        break;
    case u'\r':
        out += "\\r";
        break;
    case u'\t':
        out += "\\t";
        break;
    default:
        appendEscape(out, unit);
    }
}

bool needsEscape(QStringView text, qsizetype index) {
    const char16_t unit = text[index].unicode();
    return unit < 0x20 || unit == u'"' || unit == u'\\' || isLoneSurrogate(text, index);
}

} // namespace

void JsonWriter::key(QByteArrayView name) {
    startLine();
    out += '"';
    out += name;
    out += "\": ";
    hasKey = true;
}

void JsonWriter::number(double value) {
    startValue();
    out += plainNumber(value);
}

void JsonWriter::boolean(bool value) {
    startValue();
    out += value ? "true" : "false";
}

void JsonWriter::string(QStringView text) {
    startValue();
    out += '"';
    qsizetype done = 0;
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (!needsEscape(text, index)) continue;
        out += text.sliced(done, index - done).toUtf8();
        appendEscaped(out, text[index].unicode());
        done = index + 1;
    }
    out += text.sliced(done).toUtf8();
    out += '"';
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
    if (!isFirst) {
        out += '\n';
        out.append(spacesPerLevel * depth, ' ');
    }
    isFirst = false;
    out += bracket;
    if (depth == 0) out += '\n';
}

void JsonWriter::startValue() {
    if (!hasKey && depth > 0) startLine();
    hasKey = false;
}

void JsonWriter::startLine() {
    if (!isFirst) out += ',';
    isFirst = false;
    out += '\n';
    out.append(spacesPerLevel * depth, ' ');
}

} // namespace tessaline

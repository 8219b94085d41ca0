#include "settings/JsonCursor.h"

#include <QUtf8StringView>

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
using namespace std::string_view_literals;

namespace {

constexpr int greatestDepth = 512;
constexpr QByteArrayView byteOrderMark("\xef\xbb\xbf");

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The digit's value; negative for what is no hexadecimal digit.
int hexadecimal(char c) {
    if (isDigit(c)) return c - '0';
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// The UTF-16 unit of the escape at `at`, which is valid. Goes past it.
char16_t takeUnit(const char*& at) {
    constexpr std::string_view letters = "bfnrt";
    constexpr std::string_view controls = "\b\f\n\r\t";
    const char kind = at[1];
    at += 2;
    if (kind != 'u') {
        const std::size_t index = letters.find(kind);
        return index == std::string_view::npos ? char16_t(kind) : char16_t(controls[index]);
    }
    int unit = 0;
    for (const char* const last = at + 4; at != last; ++at)
        unit = unit * 16 + hexadecimal(*at);
    return char16_t(unit);
}

enum class Byte : char { plain, beyondAscii, special };

constexpr std::array<Byte, 256> kindsInText = [] {
    std::array<Byte, 256> kinds{};
    for (std::size_t byte = 0; byte < kinds.size(); ++byte)
        kinds[byte] = byte < 0x20 || byte == '"' || byte == '\\' ? Byte::special
                      : byte >= 0x80                             ? Byte::beyondAscii
                                                                 : Byte::plain;
    return kinds;
}();

} // namespace

QString JsonText::decoded() const {
    if (!hasEscapes) return QString::fromUtf8(written);
    QString text;
    const char* at = written.begin();
    while (at != written.end()) {
        const char* const plain = at;
        while (at != written.end() && *at != '\\')
            ++at;
        text += QString::fromUtf8(plain, at - plain);
        if (at != written.end()) text += QChar(takeUnit(at));
    }
    return text;
}

bool JsonText::is(QByteArrayView plain) const {
    return hasEscapes ? decoded() == QString::fromUtf8(plain) : written == plain;
}

bool JsonText::isUnicode() const {
    return !hasEscapes || decoded().isValidUtf16();
}

JsonCursor::JsonCursor(QByteArrayView json)
    : begin(json.data())
    , end(json.data() + json.size())
    , at(json.startsWith(byteOrderMark) ? begin + byteOrderMark.size() : begin) {}

JsonCursor::Kind JsonCursor::kind() {
    const char c = peek();
    switch (c) {
    case '{':
        return Kind::object;
    case '[':
        return Kind::array;
    case '"':
        return Kind::text;
    case 't':
    case 'f':
        return Kind::boolean;
    case 'n':
        return Kind::null;
    default:
        if (isDigit(c) || c == '-') return Kind::number;
        fail();
        return Kind::none;
    }
}

bool JsonCursor::takeBoolean() {
    const bool value = peek() == 't';
    skipLiteral();
    return value;
}

double JsonCursor::takeNumber() {
    peek();
    const char* const first = at;
    skipNumber();
    // That of bytes gives 0 for numbers that are too large.
    return QString::fromLatin1(first, at - first).toDouble();
}

JsonText JsonCursor::takeText() {
    if (peek() != '"') {
        fail();
        return {};
    }
    const char* const first = ++at;
    bool hasEscapes = false;
    bool isAscii = true;
    while (true) {
        Byte kind = Byte::plain;
        for (; at != end && (kind = kindsInText[std::size_t(uchar(*at))]) != Byte::special; ++at)
            isAscii = isAscii && kind == Byte::plain;
        if (at == end || *at != '\\') break;
        hasEscapes = true;
        if (!skipEscape()) return {};
    }
    if (at == end || *at != '"') {
        fail();
        return {};
    }
    const JsonText text{{first, at}, hasEscapes};
    ++at;
    if (isAscii || text.written.isValidUtf8()) return text;
    at = first;
    fail();
    return {};
}

void JsonCursor::skip() {
    switch (kind()) {
    case Kind::array:
        enter();
        while (nextElement())
            skip();
        break;
    case Kind::object:
        enter();
        while (nextMember())
            skip();
        break;
    case Kind::text:
        takeText();
        break;
    case Kind::number:
        skipNumber();
        break;
    default:
        skipLiteral();
    }
}

void JsonCursor::enter() {
    if (peek() != '[' && peek() != '{') {
        fail();
    } else if (++depth > greatestDepth) {
        refuse(u"The JSON is nested too deeply"_s);
    } else {
        ++at;
        isFirst = true;
    }
}

std::optional<JsonText> JsonCursor::nextMember() {
    if (!goOn('}')) return std::nullopt;
    const JsonText name = takeText();
    if (peek() != ':') {
        fail();
        return std::nullopt;
    }
    ++at;
    return name;
}

bool JsonCursor::refuse(const QString& reason) {
    if (problem.isEmpty()) problem = reason;
    at = end;
    return false;
}

bool JsonCursor::finish(QString* error) {
    peek();
    if (at != end) fail();
    if (error) *error = problem;
    return problem.isEmpty();
}

/// What comes after white space; a NUL at the end.
char JsonCursor::peek() {
    while (at != end && (*at == ' ' || *at == '\n' || *at == '\r' || *at == '\t'))
        ++at;
    return at == end ? '\0' : *at;
}

/// Whether the array or object, which ends with `closing`, is to have something more.
bool JsonCursor::goOn(char closing) {
    const bool wasFirst = std::exchange(isFirst, false);
    const char c = peek();
    if (c == closing) {
        ++at;
        --depth;
        return false;
    }
    if (!wasFirst && c == ',') {
        ++at;
    } else if (!wasFirst) {
        fail();
    }
    return problem.isEmpty();
}

/// This is the byte with which it ceases to be JSON; of a text that is no UTF-8, the first.
bool JsonCursor::fail() {
    return refuse(u"Invalid JSON at byte %1"_s.arg(at - begin + 1));
}

void JsonCursor::skipLiteral() {
    const char c = peek();
    for (const char expected : c == 't' ? "true"sv : c == 'f' ? "false"sv : "null"sv) {
        if (at == end || *at != expected) {
            fail();
            return;
        }
        ++at;
    }
}

void JsonCursor::skipNumber() {
    const auto isAt = [this](std::string_view characters) {
        return at != end && characters.find(*at) != std::string_view::npos;
    };
    if (isAt("-")) ++at;
    const bool isZero = isAt("0");
    if (isZero) ++at;
    if (!isZero && !skipDigits()) return;
    if (isAt(".")) {
        ++at;
        if (!skipDigits()) return;
    }
    if (!isAt("eE")) return;
    ++at;
    if (isAt("+-")) ++at;
    skipDigits();
}

/// At least one.
bool JsonCursor::skipDigits() {
    const char* const first = at;
    while (at != end && isDigit(*at))
        ++at;
    return at != first || fail();
}

bool JsonCursor::skipEscape() {
    constexpr std::string_view kinds = "\"\\/bfnrtu";
    ++at;
    if (at == end || kinds.find(*at) == std::string_view::npos) return fail();
    int digits = *at++ == 'u' ? 4 : 0;
    for (; digits > 0 && at != end && hexadecimal(*at) >= 0; ++at)
        --digits;
    return digits == 0 || fail();
}

} // namespace tessaline

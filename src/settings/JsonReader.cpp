#include "settings/JsonReader.h"

#include "settings/WholeFile.h"

#include <QRegularExpression>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
using nlohmann::json;

namespace {

constexpr std::size_t greatestDepth = 512;
constexpr int mostValues = 1'000'000;

QString invalidAt(std::size_t byte) {
    return u"Invalid JSON at byte %1"_s.arg(byte);
}

/// Passes the parser's events on.
class Events final : public nlohmann::json_sax<json> {
public:
    Events(JsonVisitor& borrowed, QString& problem) : visitor(borrowed), error(problem) {}

    bool null() override { return visitor.null(); }
    bool boolean(bool value) override { return visitor.boolean(value); }
    bool number_integer(number_integer_t value) override { return visitor.number(double(value)); }
    bool number_unsigned(number_unsigned_t value) override { return visitor.number(double(value)); }
    bool number_float(number_float_t value, const string_t& /*text*/) override {
        return visitor.number(value);
    }
    bool string(string_t& value) override { return visitor.string(value); }
    bool binary(binary_t& /*value*/) override { return visitor.null(); }

    bool start_object(std::size_t /*members*/) override { return visitor.beginObject(); }
    bool key(string_t& name) override { return visitor.key(name); }
    bool end_object() override { return visitor.endObject(); }
    bool start_array(std::size_t /*elements*/) override { return visitor.beginArray(); }
    bool end_array() override { return visitor.endArray(); }

    bool parse_error(std::size_t position, const std::string& /*token*/,
                     const json::exception& /*exception*/) override {
        error = invalidAt(position);
        return false;
    }

private:
    JsonVisitor& visitor;
    QString& error;
};

/// Builds the value that the visitor is shown.
class ValueBuilder final : public JsonVisitor {
public:
    JsonValue root;
    QString problem;

    bool null() override { return put(std::monostate()); }
    bool boolean(bool value) override { return put(value); }
    bool number(double value) override { return put(value); }
    bool string(const std::string& value) override { return put(QString::fromStdString(value)); }

    bool beginObject() override { return enter(JsonValue::Object()); }
    bool beginArray() override { return enter(JsonValue::Array()); }
    bool endObject() override { return leave(); }
    bool endArray() override { return leave(); }

    bool key(const std::string& name) override {
        std::get<JsonValue::Object>(open.back()->content)
            .push_back({QString::fromStdString(name), {}});
        return true;
    }

private:
    /// Where the next value belongs.
    JsonValue& place() {
        if (open.empty()) return root;
        if (auto* array = std::get_if<JsonValue::Array>(&open.back()->content))
            return array->emplace_back();
        return std::get<JsonValue::Object>(open.back()->content).back().value;
    }

    template <typename T>
    bool put(T content) {
        place().content = std::move(content);
        return ++values <= mostValues || fail(u"The JSON holds too many values"_s);
    }

    /// What is open stays where it is: only the innermost value grows.
    template <typename T>
    bool enter(T container) {
        JsonValue& value = place();
        value.content = std::move(container);
        open.push_back(&value);
        if (open.size() > greatestDepth) return fail(u"The JSON is nested too deeply"_s);
        return ++values <= mostValues || fail(u"The JSON holds too many values"_s);
    }

    bool leave() {
        open.pop_back();
        return true;
    }

    bool fail(const QString& what) {
        problem = what;
        return false;
    }

    std::vector<JsonValue*> open; ///< from the root to the innermost
    int values = 0;
};

/// None, with the reason in `problem`, also for what only this parser refuses.
std::optional<JsonValue> parseStrictly(const QByteArray& bytes, QString& problem) {
    ValueBuilder builder;
    if (visitJson(bytes, builder, problem)) return std::move(builder.root);
    if (!builder.problem.isEmpty()) problem = builder.problem;
    return std::nullopt;
}

/// Puts what no reader takes for anything else in a value's place. No byte moves, so that errors
/// are reported where they are. The value is longer than this.
void blank(char* begin, char* end) {
    constexpr std::string_view placeholder = "[[]]";
    std::fill(std::copy(placeholder.begin(), placeholder.end(), begin), end, ' ');
}

bool isNumberBeyondDoubles(QByteArrayView text) {
    constexpr qsizetype mostDigits = std::numeric_limits<double>::max_exponent10;
    if (text.size() <= mostDigits && !text.contains('e') && !text.contains('E')) return false;
    static const QRegularExpression number(uR"(\A-?(0|[1-9]\d*)(\.\d+)?([eE][+-]?\d+)?\z)"_s);
    return !json::accept(text.begin(), text.end()) &&
           number.match(QString::fromLatin1(text)).hasMatch();
}

bool isInNumber(char c) {
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

/// Blanks the number at `begin` if it is too large. Returns where it ends.
char* mendNumber(char* begin, char* end) {
    end = std::find_if_not(begin, end, isInNumber);
    if (isNumberBeyondDoubles({begin, end})) blank(begin, end);
    return end;
}

/// The UTF-16 unit that the escape at `at` stands for; 0 when there is none of the form \uXXXX.
char16_t escapedUnit(const char* at, const char* end) {
    if (end - at < 6 || at[0] != '\\' || at[1] != 'u') return 0;
    bool isNumber = false;
    const ushort unit = QByteArrayView(at + 2, 4).toUShort(&isNumber, 16);
    return isNumber ? unit : 0;
}

/// Goes past an escape. Where it is half of a surrogate pair, another character takes its place.
char* mendEscape(char* at, char* end, bool& wasHalf) {
    const char16_t unit = escapedUnit(at, end);
    if (!QChar::isSurrogate(unit)) return at + std::min<std::ptrdiff_t>(2, end - at);
    if (QChar::isHighSurrogate(unit) && QChar::isLowSurrogate(escapedUnit(at + 6, end)))
        return at + 12;
    wasHalf = true;
    std::fill_n(at + 2, 4, 'f');
    return at + 6;
}

bool isKey(const char* afterText, const char* end) {
    const char* next = std::find_if_not(
        afterText, end, [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
    return next != end && *next == ':';
}

/// Blanks the text at `begin` if it holds half of a surrogate pair. Returns where it ends.
char* mendText(char* begin, char* end) {
    bool hasHalf = false;
    char* at = begin + 1;
    while (at != end && *at != '"')
        at = *at == '\\' ? mendEscape(at, end, hasHalf) : at + 1;
    if (at == end) return end;
    ++at;
    if (hasHalf && !isKey(at, end) && json::accept(begin, at)) blank(begin, at);
    return at;
}

/// The same JSON without the values that the parser refuses although they are valid.
QByteArray withoutUnusableValues(QByteArray bytes) {
    char* at = bytes.begin();
    char* const end = bytes.end();
    while (at != end) {
        if (*at == '"') {
            at = mendText(at, end);
        } else if (*at == '-' || (*at >= '0' && *at <= '9')) {
            at = mendNumber(at, end);
        } else {
            ++at;
        }
    }
    return bytes;
}

} // namespace

std::optional<JsonValue> parseJson(const QByteArray& bytes, QString* error) {
    QString problem;
    auto value = parseStrictly(bytes, problem);
    if (!value) value = parseStrictly(withoutUnusableValues(bytes), problem);
    if (!value && error) *error = problem;
    return value;
}

std::optional<JsonValue> parseJsonObject(const QByteArray& bytes, QString* error) {
    auto value = parseJson(bytes, error);
    if (!value || value->as<JsonValue::Object>()) return value;
    if (error) *error = u"The JSON is not an object"_s;
    return std::nullopt;
}

bool visitJson(const QByteArray& bytes, JsonVisitor& visitor, QString& error) {
    Events events(visitor, error);
    if (!json::sax_parse(bytes.begin(), bytes.end(), &events)) return false;
    // The parser takes a NUL for the end of the text.
    const qsizetype nul = bytes.indexOf('\0');
    if (nul >= 0) error = invalidAt(std::size_t(nul) + 1);
    return nul < 0;
}

std::optional<JsonValue> readJsonFile(const QString& path, QString* error) {
    const auto bytes = readWholeFile(path, error, jsonFileLimit);
    return bytes ? parseJson(*bytes, error) : std::nullopt;
}

} // namespace tessaline

#include "render/markdown/MarkdownLine.h"

#include "render/markdown/CharacterClasses.h"

#include <optional>

namespace tessaline {

namespace {

using Kind = MarkdownLine::Kind;

bool isRule(QStringView trimmed) {
    return trimmed == u"---" || trimmed == u"***" || trimmed == u"___";
}

/// Where the text begins after at least one white space at `position`, or none.
std::optional<qsizetype> afterWhitespace(QStringView line, qsizetype position) {
    const qsizetype end = skipWhitespace(line, position);
    if (end == position) return std::nullopt;
    return end;
}

std::optional<MarkdownLine> parseHeader(QStringView trimmed) {
    qsizetype level = 0;
    while (level < 6 && level < trimmed.size() && trimmed[level] == u'#')
        ++level;
    const auto begin = level > 0 ? afterWhitespace(trimmed, level) : std::nullopt;
    if (!begin) return std::nullopt;
    return MarkdownLine{Kind::header, trimmed.sliced(*begin), 0, {}, int(level)};
}

qsizetype indentWidth(QStringView line) {
    qsizetype width = 0;
    for (const QChar c : line) {
        if (c != u' ' && c != u'\t') break;
        width += c == u'\t' ? 4 : 1;
    }
    return width;
}

/// The kind of task whose box begins at `position`, with the place of its text.
std::optional<MarkdownLine> parseTask(QStringView line, qsizetype position) {
    if (position + 2 >= line.size() || line[position] != u'[' || line[position + 2] != u']')
        return std::nullopt;
    const char16_t mark = line[position + 1].unicode();
    const bool checked = mark == u'x' || mark == u'X';
    if (!checked && !isWhitespace(mark)) return std::nullopt;
    const auto text = afterWhitespace(line, position + 3);
    if (!text) return std::nullopt;
    return MarkdownLine{checked ? Kind::checkedTask : Kind::uncheckedTask, line.sliced(*text),
                        indentWidth(line)};
}

std::optional<MarkdownLine> parseListItem(QStringView line, qsizetype marker) {
    const auto text = afterWhitespace(line, marker + 1);
    if (!text) return std::nullopt;
    if (const auto task = parseTask(line, *text)) return task;
    return MarkdownLine{Kind::bullet, line.sliced(*text), indentWidth(line)};
}

std::optional<MarkdownLine> parseNumberedItem(QStringView line, qsizetype digits) {
    const qsizetype period = skipDigits(line, digits);
    if (period == digits || period == line.size() || line[period] != u'.') return std::nullopt;
    const auto text = afterWhitespace(line, period + 1);
    if (!text) return std::nullopt;
    return MarkdownLine{Kind::numbered, line.sliced(*text), indentWidth(line),
                        line.sliced(digits, period - digits)};
}

std::optional<MarkdownLine> parseItem(QStringView line) {
    const qsizetype begin = skipWhitespace(line, 0);
    if (begin == line.size()) return std::nullopt;
    const QChar first = line[begin];
    if (first == u'-' || first == u'*') return parseListItem(line, begin);
    return parseNumberedItem(line, begin);
}

} // namespace

MarkdownLine MarkdownLine::parse(QStringView line) {
    const QStringView trimmed = trimmedInline(line);
    if (isRule(trimmed)) return {Kind::rule};
    if (const auto header = parseHeader(trimmed)) return *header;
    if (const auto item = parseItem(line)) return *item;
    if (trimmed.startsWith(u'>')) return {Kind::quote, trimmedInline(trimmed.sliced(1))};
    return {Kind::paragraph, line};
}

bool isCodeFence(QStringView line) {
    return trimmedInline(line).startsWith(u"```");
}

} // namespace tessaline

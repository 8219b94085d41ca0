#pragma once

#include <QChar>
#include <QStringView>

namespace tessaline {

/// The Unicode property White_Space, which is also what `\s` matches.
constexpr bool isWhitespace(char16_t c) {
    if (c < 0x80) return c == u' ' || (c >= u'\t' && c <= u'\r');
    return c == 0x85 || c == 0xA0 || c == 0x1680 || (c >= 0x2000 && c <= 0x200A) || c == 0x2028 ||
           c == 0x2029 || c == 0x202F || c == 0x205F || c == 0x3000;
}

/// The characters that `.` does not match and after which `(?m)^` does.
/// Without branches, so that loops over it are vectorised.
constexpr bool isLineTerminator(char16_t c) {
    return (char16_t(c - u'\n') <= u'\r' - u'\n') | (c == 0x85) | ((c | 1) == 0x2029);
}

/// White space within a line: the space separators and the tab.
constexpr bool isInlineWhitespace(char16_t c) {
    return c == u'\t' || (isWhitespace(c) && !isLineTerminator(c));
}

/// The text without white space within a line at both ends.
constexpr QStringView trimmedInline(QStringView text) {
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && isInlineWhitespace(text[begin].unicode()))
        ++begin;
    while (end > begin && isInlineWhitespace(text[end - 1].unicode()))
        --end;
    return text.sliced(begin, end - begin);
}

/// Where the run of white space beginning at `position` ends.
constexpr qsizetype skipWhitespace(QStringView text, qsizetype position) {
    while (position < text.size() && isWhitespace(text[position].unicode()))
        ++position;
    return position;
}

/// Where the run of decimal digits of any script beginning at `position` ends.
inline qsizetype skipDigits(QStringView text, qsizetype position) {
    while (position < text.size()) {
        const QChar c = text[position];
        if (c.isHighSurrogate() && position + 1 < text.size() &&
            text[position + 1].isLowSurrogate()) {
            if (!QChar::isDigit(QChar::surrogateToUcs4(c, text[position + 1]))) break;
            position += 2;
        } else {
            if (!c.isDigit()) break;
            ++position;
        }
    }
    return position;
}

} // namespace tessaline

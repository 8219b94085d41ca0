#include "sources/notes/HtmlScanners.h"

#include "render/markdown/CharacterClasses.h"

namespace tessaline {

namespace {

constexpr QStringView styleOpening = u"<style";
constexpr QStringView styleClosing = u"</style>";

} // namespace

std::optional<HtmlMatch> LiteralScanner::next(qsizetype position) {
    const qsizetype begin = text.indexOf(find, position);
    if (begin < 0) return std::nullopt;
    return HtmlMatch{begin, begin + find.size()};
}

std::optional<HtmlMatch> TagScanner::next(qsizetype position) {
    while (true) {
        const qsizetype begin = text.indexOf(find, position);
        if (begin < 0) return std::nullopt;
        const qsizetype inner = begin + find.size();
        const qsizetype close = text.indexOf(u'>', inner);
        // Without a ">" here there is none further on either.
        if (close < 0) return std::nullopt;
        if (close - inner >= fewest) return HtmlMatch{begin, close + 1};
        position = inner;
    }
}

std::optional<HtmlMatch> StyleScanner::next(qsizetype position) {
    while (true) {
        const qsizetype begin = text.indexOf(styleOpening, position);
        if (begin < 0) return std::nullopt;
        const qsizetype close = text.indexOf(u'>', begin);
        if (close < 0) return std::nullopt;
        const qsizetype end = nextClosing(close + 1);
        if (end == text.size()) return std::nullopt;
        if (nextTerminator(close + 1) > end) return HtmlMatch{begin, end + styleClosing.size()};
        // Other openings before this ">" would end at it as well, and meet the same line break.
        position = close + 1;
    }
}

qsizetype StyleScanner::nextClosing(qsizetype position) {
    if (closing < position) {
        closing = text.indexOf(styleClosing, position);
        if (closing < 0) closing = text.size();
    }
    return closing;
}

qsizetype StyleScanner::nextTerminator(qsizetype position) {
    if (terminator < position) {
        terminator = position;
        while (terminator < text.size() && !isLineTerminator(text[terminator].unicode()))
            ++terminator;
    }
    return terminator;
}

std::optional<HtmlMatch> BlankLinesScanner::next(qsizetype position) {
    const qsizetype begin = text.indexOf(u"\n\n\n", position);
    if (begin < 0) return std::nullopt;
    qsizetype end = begin + 3;
    while (end < text.size() && text[end] == u'\n')
        ++end;
    return HtmlMatch{begin, end};
}

} // namespace tessaline

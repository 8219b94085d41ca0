#include "render/markdown/InlineFormatter.h"

#include "render/markdown/MarkerScanner.h"

#include <algorithm>

namespace tessaline {

namespace {

using Markers = MarkerScanner::Kind;

/// Which marker characters a line holds, as a set of these bits.
enum Marker : unsigned { none = 0, asterisk = 1, underscore = 2, backtick = 4, tilde = 8 };

unsigned markersIn(QStringView line) {
    std::uint16_t found = none; // accumulated without a branch, so that the loop is vectorised
    for (const QChar c : line) {
        const char16_t unit = c.unicode();
        found |=
            std::uint16_t((unit == u'*' ? asterisk : none) | (unit == u'_' ? underscore : none) |
                          (unit == u'`' ? backtick : none) | (unit == u'~' ? tilde : none));
    }
    return found;
}

template <typename Apply>
void forEachMatch(MarkerScanner scanner, Apply apply) {
    for (auto match = scanner.next(0); match; match = scanner.next(match->end))
        apply(*match);
}

/// As above for two markers at once: whichever match begins first hides those that cross it.
template <typename Apply>
void forEachMatch(MarkerScanner first, MarkerScanner second, Apply apply) {
    auto one = first.next(0);
    auto other = second.next(0);
    while (one || other) {
        const auto match = !other || (one && one->begin < other->begin) ? *one : *other;
        apply(match);
        if (one && one->begin < match.end) one = first.next(match.end);
        if (other && other->begin < match.end) other = second.next(match.end);
    }
}

} // namespace

const std::vector<InlineFormatter::Span>& InlineFormatter::format(QStringView line) {
    spans.clear();
    if (line.isEmpty()) return spans;
    const unsigned markers = markersIn(line);
    if (markers == none) {
        spans.push_back({line, plain});
        return spans;
    }
    characters.assign(line.utf16(), std::size_t(line.size()));
    styles.assign(characters.size(), plain);
    applyStyles(markers);
    removeMarkers(markers);
    collectSpans();
    return spans;
}

void InlineFormatter::applyStyles(unsigned markers) {
    const QStringView text(characters);
    const auto fill = [this](const MarkerScanner::Match& match, std::uint8_t style) {
        std::fill(styles.begin() + match.begin, styles.begin() + match.end, style);
    };
    if (markers & (asterisk | underscore)) {
        forEachMatch({text, u'*', Markers::doubled}, {text, u'_', Markers::doubled},
                     [&](const auto& match) { fill(match, bold); });
        // Italic slants the font that the match begins with, over the whole match.
        forEachMatch({text, u'*', Markers::lone}, {text, u'_', Markers::lone},
                     [&](const auto& match) { fill(match, styles[match.begin] | italic); });
    }
    if (markers & backtick) {
        forEachMatch({text, u'`', Markers::code}, [&](const auto& match) { fill(match, code); });
    }
    if (markers & tilde) {
        forEachMatch({text, u'~', Markers::doubled}, [&](const auto& match) {
            for (qsizetype i = match.begin; i < match.end; ++i)
                styles[i] |= strikethrough;
        });
    }
}

void InlineFormatter::removeMarkers(unsigned markers) {
    if (markers & asterisk) removePairs(u'*', Markers::doubled);
    if (markers & underscore) removePairs(u'_', Markers::doubled);
    if (markers & asterisk) removePairs(u'*', Markers::lone);
    if (markers & underscore) removePairs(u'_', Markers::lone);
    if (markers & backtick) removePairs(u'`', Markers::code);
    if (markers & tilde) removePairs(u'~', Markers::doubled);
}

void InlineFormatter::removePairs(char16_t marker, MarkerScanner::Kind kind) {
    const QStringView text(characters);
    qsizetype written = 0;
    qsizetype read = 0;
    const auto keepUntil = [&](qsizetype end) {
        if (written != read) {
            std::copy(characters.begin() + read, characters.begin() + end,
                      characters.begin() + written);
            std::copy(styles.begin() + read, styles.begin() + end, styles.begin() + written);
        }
        written += end - read;
        read = end;
    };
    // In place: the scanner looks back by one unit, and what is written ends further back than
    // that.
    forEachMatch({text, marker, kind}, [&](const auto& match) {
        keepUntil(match.begin);
        const std::uint8_t style = styles[match.innerBegin];
        const qsizetype shown = written;
        read = match.innerBegin;
        keepUntil(match.innerEnd);
        std::fill(styles.begin() + shown, styles.begin() + written, style);
        read = match.end;
    });
    keepUntil(text.size());
    characters.resize(std::size_t(written));
    styles.resize(std::size_t(written));
}

void InlineFormatter::collectSpans() {
    const QStringView text(characters);
    for (qsizetype begin = 0; begin < text.size();) {
        const auto end = std::find_if(styles.begin() + begin, styles.end(),
                                      [&](std::uint8_t style) { return style != styles[begin]; }) -
                         styles.begin();
        spans.push_back({text.sliced(begin, end - begin), styles[begin]});
        begin = end;
    }
}

} // namespace tessaline

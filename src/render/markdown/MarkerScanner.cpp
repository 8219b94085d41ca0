#include "render/markdown/MarkerScanner.h"

#include "render/markdown/CharacterClasses.h"

#include <algorithm>

namespace tessaline {

MarkerScanner::MarkerScanner(QStringView scannedText, char16_t markerCharacter, Kind markerKind)
    : text(scannedText)
    , marker(markerCharacter)
    , kind(markerKind)
    , markerLength(markerKind == Kind::doubled ? 2 : 1) {}

std::optional<MarkerScanner::Match> MarkerScanner::next(qsizetype position) {
    qsizetype opening = nextMarker(std::max(position, hopelessBefore));
    while (opening < text.size()) {
        if (const auto match = matchAt(opening)) return match;
        opening = nextMarker(std::max(opening + 1, hopelessBefore));
    }
    return std::nullopt;
}

std::optional<MarkerScanner::Match> MarkerScanner::matchAt(qsizetype opening) {
    const qsizetype innerBegin = opening + markerLength;
    if (kind == Kind::code && isMarkerCharacter(innerBegin)) return std::nullopt;
    const qsizetype closing = nextMarker(innerBegin + 1);
    const qsizetype reached = reach(innerBegin, closing);
    if (reached == closing && closing < text.size())
        return Match{opening, innerBegin, closing, closing + markerLength};
    hopelessBefore = reached;
    return std::nullopt;
}

/// How far a pair that was opened before `begin` may reach on its way to `end`.
qsizetype MarkerScanner::reach(qsizetype begin, qsizetype end) const {
    if (kind == Kind::code || begin >= end) return end;
    const auto terminator = std::find_if(text.begin() + begin, text.begin() + end,
                                         [](QChar c) { return isLineTerminator(c.unicode()); });
    return terminator - text.begin();
}

qsizetype MarkerScanner::nextMarker(qsizetype position) const {
    while (position < text.size()) {
        const qsizetype found = text.indexOf(marker, position);
        if (found < 0) break;
        if (isMarkerAt(found)) return found;
        position = found + 1;
    }
    return text.size();
}

bool MarkerScanner::isMarkerCharacter(qsizetype position) const {
    return position >= 0 && position < text.size() && text[position] == marker;
}

bool MarkerScanner::isMarkerAt(qsizetype position) const {
    switch (kind) {
    case Kind::doubled:
        return isMarkerCharacter(position + 1);
    case Kind::lone:
        return !isMarkerCharacter(position - 1) && !isMarkerCharacter(position + 1);
    case Kind::code:
        return true;
    }
    Q_UNREACHABLE();
}

} // namespace tessaline

#include "render/MarkerScanner.h"

#include "render/CharacterClasses.h"

namespace tessaline {

MarkerScanner::MarkerScanner(QStringView scannedText, char16_t markerCharacter, Kind markerKind)
    : text(scannedText)
    , marker(markerCharacter)
    , kind(markerKind)
    , markerLength(markerKind == Kind::doubled ? 2 : 1) {}

std::optional<MarkerScanner::Match> MarkerScanner::matchAt(qsizetype position) {
    if (position < hopelessBefore || !isMarkerAt(position)) return std::nullopt;
    const qsizetype innerBegin = position + markerLength;
    if (innerBegin >= text.size() || endsSearch(innerBegin)) return std::nullopt;
    if (kind == Kind::code && isMarkerCharacter(innerBegin)) return std::nullopt;

    qsizetype candidate = innerBegin + 1;
    for (; candidate < text.size(); ++candidate) {
        if (isMarkerAt(candidate))
            return Match{position, innerBegin, candidate, candidate + markerLength};
        if (endsSearch(candidate)) break;
    }
    hopelessBefore = candidate;
    return std::nullopt;
}

bool MarkerScanner::isMarkerCharacter(qsizetype position) const {
    return position >= 0 && position < text.size() && text[position] == marker;
}

bool MarkerScanner::isMarkerAt(qsizetype position) const {
    if (!isMarkerCharacter(position)) return false;
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

bool MarkerScanner::endsSearch(qsizetype position) const {
    return kind != Kind::code && isLineTerminator(text[position].unicode());
}

} // namespace tessaline

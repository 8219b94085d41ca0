#pragma once

#include <QStringView>

#include <optional>

namespace tessaline {

/// Finds pairs of one inline marker, such as `**…**`. All its calls together are linear in the
/// text's length as long as positions do not decrease, because a stretch once searched for a
/// closing marker in vain is not searched again.
class MarkerScanner {
public:
    enum class Kind {
        doubled, ///< two of the character, around at least one other, within a line
        lone,    ///< one of the character without another of it on either side, within a line
        code,    ///< one of the character, around others only
    };

    /// A pair; offsets in UTF-16 units. The markers are what lies between outer and inner bounds.
    struct Match {
        qsizetype begin;
        qsizetype innerBegin;
        qsizetype innerEnd;
        qsizetype end;
    };

    MarkerScanner(QStringView text, char16_t marker, Kind kind);

    /// The first pair that begins at or after a position, if there is one.
    std::optional<Match> next(qsizetype position);

private:
    std::optional<Match> matchAt(qsizetype opening);
    qsizetype nextMarker(qsizetype position) const;
    bool isMarkerAt(qsizetype position) const;
    bool isMarkerCharacter(qsizetype position) const;
    qsizetype reach(qsizetype begin, qsizetype end) const;

    QStringView text;
    char16_t marker;
    Kind kind;
    qsizetype markerLength;
    qsizetype hopelessBefore = 0; ///< no opening marker before this position finds its closing one
};

} // namespace tessaline

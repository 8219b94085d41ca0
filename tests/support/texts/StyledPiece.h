#pragma once

#include "render/StyledText.h"
#include "render/TextAttributes.h"

#include <QString>

#include <iosfwd>
#include <vector>

namespace tessaline {

/// A run with its text and its resolved attributes, to compare styled texts by.
struct StyledPiece {
    QString text;
    TextAttributes attributes;

    bool operator==(const StyledPiece&) const = default;
};

/// The runs of a text, in order.
std::vector<StyledPiece> piecesOf(const StyledText& styled);

/// What is wrong with the runs: a gap, an overlap, an empty run, an unknown style, equal
/// neighbours, an end before or beyond the text's. Empty when they are as promised.
QString runDefect(const StyledText& styled);

/// Prints the text escaped and the attributes that are present.
std::ostream& operator<<(std::ostream& out, const StyledPiece& piece);

} // namespace tessaline

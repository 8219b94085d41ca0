#pragma once

#include <QString>

#include <compare>

namespace tessaline {

/// The note in Apple Notes that the user picked.
struct AppleNotesConfiguration {
    QString noteId;   ///< as Notes reports it
    QString noteName; ///< the note's title, for display

    bool operator==(const AppleNotesConfiguration&) const = default;
};

} // namespace tessaline

#pragma once

#include <QHashFunctions>
#include <QString>

#include <cstddef>
#include <functional>
#include <tuple>

namespace tessaline {

/// The note in Apple Notes that the user picked.
struct AppleNotesConfiguration {
    QString noteId;   ///< as Notes reports it
    QString noteName; ///< the note's title, for display

    bool operator==(const AppleNotesConfiguration&) const = default;
    bool operator<(const AppleNotesConfiguration& other) const {
        return std::tie(noteId, noteName) < std::tie(other.noteId, other.noteName);
    }
};

/// For use as a key of Qt's hashed containers.
inline std::size_t qHash(const AppleNotesConfiguration& note, std::size_t seed = 0) {
    return qHashMulti(seed, note.noteId, note.noteName);
}

} // namespace tessaline

/// For use as a key of the standard library's hashed containers.
template <>
struct std::hash<tessaline::AppleNotesConfiguration> {
    std::size_t operator()(const tessaline::AppleNotesConfiguration& note) const {
        return qHash(note);
    }
};

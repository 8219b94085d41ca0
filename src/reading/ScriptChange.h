#pragma once

#include "reading/Script.h"

#include <cstddef>

namespace tessaline {

/// What a change of a script is for those who know its text only.
struct TextChange {
    qsizetype begin = 0; ///< in UTF-16 units
    QString removed;
    QString inserted;
};

/// Where one script differs from another: everything but a common beginning and a common end.
struct ScriptChange {
    std::size_t first = 0;    ///< paragraphs before this one are the same in both
    std::size_t oldCount = 0; ///< how many of the old script's paragraphs were replaced
    std::size_t newCount = 0; ///< how many paragraphs of the new script replace them

    /// Compares two scripts paragraph by paragraph from both ends.
    static ScriptChange between(const Script& before, const Script& after);

    /// What to remove from the old text and to insert there for the new one.
    TextChange textChange(const Script& before, const Script& after) const;

    /// Where an old offset lies in the new text; one inside the replaced stretch moves to the
    /// stretch's beginning or, if that is nearer, its end.
    static qsizetype movedOffset(qsizetype offset, const Script& before, const Script& after,
                                 const ScriptChange& change);
};

} // namespace tessaline

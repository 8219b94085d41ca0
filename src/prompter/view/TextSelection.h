#pragma once

#include "prompter/layout/TextRange.h"

namespace tessaline {

struct Script;

/// The caret of a read-only text and what is selected between it and its anchor. Offsets in UTF-16
/// units. Movements never leave the text or split a character as the user sees it.
class TextSelection {
public:
    enum class Unit { character, word, paragraph };

    /// Puts the caret at an offset; the anchor follows unless the selection is being extended.
    void moveTo(qsizetype offset, bool extend);

    /// Selects the whole unit around an offset.
    void selectUnit(const Script& script, qsizetype offset, Unit unit);

    /// Extends what `selectUnit` selected by whole units up to an offset.
    void extendByUnit(const Script& script, qsizetype offset, Unit unit);

    /// The offset one unit before or behind the caret.
    qsizetype neighbour(const Script& script, Unit unit, bool forward) const;

    void selectAll(const Script& script);
    void clear() { anchorOffset = caretOffset; }

    qsizetype caret() const { return caretOffset; }
    qsizetype anchor() const { return anchorOffset; }

    /// What is selected; empty where the caret is when nothing is.
    TextRange range() const;

private:
    qsizetype anchorOffset = 0;
    qsizetype caretOffset = 0;
    TextRange origin; ///< the unit that the selection began with
};

/// The unit of a script that an offset lies in.
TextRange unitAround(const Script& script, qsizetype offset, TextSelection::Unit unit);

} // namespace tessaline

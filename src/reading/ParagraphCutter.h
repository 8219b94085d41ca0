#pragma once

#include "reading/ScriptSource.h"

#include <vector>

namespace tessaline {

/// Lists the paragraphs of a script from front to back. Lines longer than `longestPiece` become
/// several, so that no single layout holds up a frame.
class ParagraphCutter {
public:
    /// In UTF-16 units. No spoken paragraph comes near it.
    static constexpr qsizetype longestPiece = 8192;

    /// Adds a line without its newline. `like` says where it comes from, and the style of the
    /// newline. False, and nothing is added, where it would make the text longer than one may be.
    bool append(QStringView line, const std::vector<StyledText::Run>& runs, ScriptParagraph like);

    /// Adds paragraphs of another list, whose lines now begin so much later in their source.
    void copy(const ScriptParagraph* from, const ScriptParagraph* to, int originShift);

    std::vector<ScriptParagraph> paragraphs;

private:
    qsizetype nextStart() const;
};

} // namespace tessaline

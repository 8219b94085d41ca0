#pragma once

#include "render/StyledText.h"

#include <QStringView>

#include <vector>

namespace tessaline {

/// A styled text cut into the paragraphs that it is laid out by. A plain value; any thread.
struct Script {
    /// A line of the text without its newline, or a piece of a very long line. Offsets in UTF-16
    /// units.
    struct Paragraph {
        int start = 0;
        int length = 0;
        int firstRun = 0;               ///< the run that `start` lies in, if that is not the end
        bool continuesPrevious = false; ///< belongs to the same line as the paragraph before
        bool continuesInNext = false;   ///< belongs to the same line as the paragraph behind
    };

    /// Lines longer than this, in UTF-16 units, are laid out in pieces, so that no single layout
    /// holds up a frame. No spoken paragraph comes near it.
    static constexpr qsizetype longestPiece = 8192;

    Script();

    /// Takes a text apart. Carriage returns are left out: they neither show nor cost a line.
    explicit Script(StyledText styledText);

    QStringView textOf(const Paragraph& paragraph) const {
        return QStringView(styled.text).sliced(paragraph.start, paragraph.length);
    }

    /// Whether a paragraph of this script and one of another have the same text and attributes.
    bool hasSameParagraph(std::size_t index, const Script& other, std::size_t otherIndex) const;

    /// The level of the heading whose line a paragraph begins, from 1 on; 0 where there is none.
    int headingLevel(std::size_t index) const;

    StyledText styled;
    std::vector<Paragraph> paragraphs; ///< at least one

private:
    void appendLine(qsizetype start, qsizetype end, qsizetype& run);
    qsizetype pieceEnd(qsizetype start, qsizetype lineEnd) const;
};

} // namespace tessaline

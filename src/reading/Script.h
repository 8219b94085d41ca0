#pragma once

#include "reading/ScriptSource.h"

#include <memory>
#include <vector>

namespace tessaline {

/// What is read, as the paragraphs that it is laid out by. Their text is made when it is asked for,
/// so that a long script takes little more memory than what it is made from. A plain value; any
/// thread.
struct Script {
    using Paragraph = ScriptParagraph;

    Script();

    /// A text that is there already, apart from its carriage returns.
    explicit Script(StyledText styledText);

    /// How many UTF-16 units the text has, newlines included.
    qsizetype length() const;

    /// What lies between two offsets, or everything.
    QString text(qsizetype begin, qsizetype end) const;
    QString text() const { return text(0, length()); }

    /// A paragraph with its attributes.
    StyledFragment content(std::size_t index) const;

    /// The attributes that a paragraph begins with; an empty one has those of its newline. Null at
    /// the text's end.
    const TextAttributes* attributes(std::size_t index) const;

    /// The paragraph that an offset lies in. A newline belongs to the one before it.
    std::size_t paragraphOf(qsizetype offset) const;

    /// Whether a paragraph of this script and one of another have the same text and attributes.
    bool hasSameParagraph(std::size_t index, const Script& other, std::size_t otherIndex) const;

    /// What a paragraph is.
    ParagraphKind kind(std::size_t index) const;

    /// The level of the heading whose line a paragraph begins, from 1 on; 0 where there is none.
    int headingLevel(std::size_t index) const;

    std::vector<Paragraph> paragraphs;  ///< at least one
    std::vector<TextAttributes> styles; ///< what the runs of paragraphs refer to
    double fontSize = 0.0; ///< of body text, which a view may replace; 0: every font is as it is
    std::shared_ptr<const ScriptSource> source;

private:
    bool hasSameOrigin(const Paragraph& mine, const Script& other, const Paragraph& its) const;
    bool hasSameAttributes(int style, const Script& other, int otherStyle) const;
};

} // namespace tessaline

#pragma once

#include "render/StyledText.h"

#include <QStringView>

#include <cstdint>
#include <optional>

namespace tessaline {

/// A line of a script's text without its newline, or a piece of a very long line. Offsets in UTF-16
/// units. Small, as a long script has a million of them.
struct ScriptParagraph {
    /// What a Markdown line follows: whether it is code, and whether blank ones are left out.
    enum class Fence : std::uint8_t { outside, atOpening, within };

    int start = 0;  ///< in the script's text
    int length = 0; ///< in the script's text
    int origin = 0; ///< where its line begins in what the source keeps
    int style = -1; ///< at its start or, if it is empty, its newline; -1: neither
    Fence fence = Fence::outside;
    bool continuesPrevious = false; ///< belongs to the same line as the paragraph before
    bool continuesInNext = false;   ///< belongs to the same line as the paragraph behind

    bool isWholeLine() const { return !continuesPrevious && !continuesInNext; }
};

/// Where the paragraphs of a script have their text from. Never changes; any thread.
class ScriptSource {
public:
    virtual ~ScriptSource() = default;

    /// The text of a paragraph with its attributes, made when it is asked for.
    virtual StyledFragment paragraph(const ScriptParagraph& paragraph) const = 0;

    /// What a whole line is made of, where that is quicker to compare than what comes of it.
    virtual std::optional<QStringView> originOf(const ScriptParagraph&) const { return {}; }
};

/// What lies between two offsets of a text with runs.
StyledFragment fragmentOf(QStringView text, const std::vector<StyledText::Run>& runs,
                          qsizetype begin, qsizetype length);

} // namespace tessaline

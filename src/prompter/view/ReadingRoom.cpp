#include "prompter/view/ReadingRoom.h"

#include "prompter/layout/ScriptLayout.h"
#include "prompter/view/ReadingFrame.h"

namespace tessaline {

namespace {

/// From the view's top, with the usual room above the text.
constexpr double linesToTheSecondLine = 1.5;

double middleOfLine(ScriptLayout& layout, qsizetype offset) {
    layout.measureAt(offset);
    return layout.caretRect(offset).center().y();
}

/// An offset in the last line with text.
qsizetype lastLine(const Script& script) {
    std::size_t last = script.paragraphs.size() - 1;
    while (last > 0 && script.paragraphs[last].length == 0)
        --last;
    return script.paragraphs[last].start + script.paragraphs[last].length;
}

} // namespace

ReadingRoom ReadingRoom::of(const ReadingFrame& frame, ScriptLayout& layout, double viewHeight) {
    ReadingRoom room;
    room.lineHeight = layout.bodyLineHeight();
    room.eyeLine = frame.eyeLine ? *frame.eyeLine * viewHeight
                                 : inset + linesToTheSecondLine * room.lineHeight;
    if (!frame.isActive) return room;
    room.readingY = room.eyeLine;
    room.above = room.eyeLine - middleOfLine(layout, 0);
    const double lastMiddle = middleOfLine(layout, lastLine(layout.script()));
    room.below = viewHeight - room.eyeLine - (layout.height() - lastMiddle);
    return room;
}

} // namespace tessaline

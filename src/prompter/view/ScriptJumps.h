#pragma once

#include "prompter/view/Glide.h"

#include <QtGlobal>

#include <cstddef>
#include <functional>

namespace tessaline {

class ScriptView;

/// Takes the reader of a view from where they are to its headings, its top and its end: at once, or
/// gliding. Whatever else moves the reader by hand stops it.
class ScriptJumps {
public:
    /// Borrows the view that owns it.
    explicit ScriptJumps(ScriptView& view);

    /// To the next heading, or to the last one before. False when there is none.
    bool toNextHeading();
    bool toPreviousHeading();

    /// To a heading of the script, counted from 1. False when there is none.
    bool toHeadingNumber(int number);

    /// To a paragraph of the script, counted from 1, if there is one.
    void toParagraphNumber(std::size_t number);

    /// To the next page, or the one before. Always gliding, so that the eye finds its line again.
    void toNextPage();
    void toPreviousPage();

    void toTop();
    void toEnd();

    /// To the line that an offset is in.
    void toOffset(qsizetype offset);

    /// Whether jumps glide from now on.
    void setGliding(bool on) { glides = on; }

    /// Ends a jump that is under way where it is.
    void stop() { glide.stop(); }
    bool isUnderWay() const { return glide.isUnderWay(); }

private:
    double start() const;
    std::size_t startParagraph() const;
    double positionOfHeading(std::size_t paragraph) const;
    void toHeading(std::size_t paragraph);
    void turnPage(double points);
    void jump(Glide::Place target, std::function<void()> arrive, bool gliding);

    ScriptView& view;
    bool glides = false;
    Glide::Place target; ///< of the last jump
    Glide glide;
};

} // namespace tessaline

#include "prompter/view/ScriptJumps.h"

#include "prompter/view/ScriptView.h"
#include "reading/ReadingSession.h"

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

/// Positions less than so many points apart count as the same.
constexpr double samePlace = 0.5;

/// What a page keeps of the one before, in points.
constexpr double pageOverlap = 20.0;

} // namespace

ScriptJumps::ScriptJumps(ScriptView& owner)
    : view(owner)
    , glide([this] { return view.scrollPosition(); },
            [this](double points) { view.reading().moveBy(points); }) {}

/// Where a jump starts from: who asks for the next heading twice means the one after the next.
double ScriptJumps::start() const {
    return isUnderWay() ? target() : view.scrollPosition();
}

double ScriptJumps::positionOfHeading(std::size_t paragraph) const {
    return view.positionOf(view.script().paragraphs[paragraph].start);
}

bool ScriptJumps::toNextHeading() {
    const double from = start();
    if (from >= view.maximumScrollPosition()) return false;
    const Script& script = view.script();
    for (std::size_t i = view.paragraphReadAt(from); i < script.paragraphs.size(); ++i) {
        if (script.headingLevel(i) == 0) continue;
        if (positionOfHeading(i) >= from + samePlace) return toHeading(i), true;
    }
    return false;
}

bool ScriptJumps::toPreviousHeading() {
    const double from = start();
    for (std::size_t i = view.paragraphReadAt(from) + 1; i-- > 0;) {
        if (view.script().headingLevel(i) == 0) continue;
        if (positionOfHeading(i) <= from - samePlace) return toHeading(i), true;
    }
    return false;
}

bool ScriptJumps::toHeadingNumber(int number) {
    const Script& script = view.script();
    for (std::size_t i = 0; i < script.paragraphs.size(); ++i) {
        if (script.headingLevel(i) != 0 && --number == 0) return toHeading(i), true;
    }
    return false;
}

void ScriptJumps::toParagraphNumber(std::size_t number) {
    const auto& paragraphs = view.script().paragraphs;
    if (number <= paragraphs.size()) toOffset(paragraphs[number - 1].start);
}

void ScriptJumps::toHeading(std::size_t paragraph) {
    toOffset(view.script().paragraphs[paragraph].start);
}

void ScriptJumps::toOffset(qsizetype offset) {
    jump([this, offset] { return std::min(view.positionOf(offset), view.maximumScrollPosition()); },
         [this, offset] { view.reading().moveTo(offset); }, glides);
}

void ScriptJumps::toTop() {
    jump([] { return 0.0; }, [this] { view.scrollTo(0); }, glides);
}

void ScriptJumps::toEnd() {
    jump([this] { return view.maximumScrollPosition(); },
         [this] { view.scrollTo(view.documentHeight()); }, glides);
}

void ScriptJumps::toNextPage() {
    turnPage(view.height() - pageOverlap);
}

void ScriptJumps::toPreviousPage() {
    turnPage(pageOverlap - view.height());
}

void ScriptJumps::turnPage(double points) {
    const double position = std::clamp(start() + points, 0.0, view.maximumScrollPosition());
    jump([position] { return position; }, [this, position] { view.scrollTo(position); }, true);
}

void ScriptJumps::jump(Glide::Place newTarget, std::function<void()> arrive, bool gliding) {
    view.scrollByHand(view.scrollPosition()); // which ends the last jump
    if (!gliding || !view.isVisible()) return arrive();
    target = std::move(newTarget);
    glide.start(target, std::move(arrive));
}

} // namespace tessaline

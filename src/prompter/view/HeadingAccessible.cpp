#include "prompter/view/HeadingAccessible.h"

#include "prompter/view/ScriptView.h"
#include "reading/ReadingSession.h"

namespace tessaline {

HeadingAccessible::HeadingAccessible(ScriptView& scriptView, std::size_t paragraph)
    : view(&scriptView), script(scriptView.reading().script()), index(paragraph) {}

bool HeadingAccessible::isValid() const {
    return view && view->reading().script() == script;
}

QString HeadingAccessible::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name) return script->content(index).text;
    // The interface to the assistive technologies has no other place for it.
    if (kind == QAccessible::Description)
        return ScriptView::tr("Level %1").arg(script->headingLevel(index));
    return {};
}

QRect HeadingAccessible::rect() const {
    if (!isValid()) return {};
    return view->mirror()
        .mirrored(view->paragraphRect(index))
        .toAlignedRect()
        .translated(view->mapToGlobal(QPoint(0, 0)));
}

QAccessible::State HeadingAccessible::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid) return state;
    state.readOnly = true;
    state.invisible = !view->isVisible();
    state.offscreen = !view->paragraphRect(index).intersects(view->rect());
    return state;
}

QAccessibleInterface* HeadingAccessible::parent() const {
    return view ? QAccessible::queryAccessibleInterface(view) : nullptr;
}

} // namespace tessaline

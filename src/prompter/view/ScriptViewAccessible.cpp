#include "prompter/view/ScriptViewAccessible.h"

#include "prompter/view/HeadingAccessible.h"
#include "prompter/view/ScriptView.h"
#include "reading/ReadingSession.h"

#include <algorithm>
#include <memory>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* view = qobject_cast<ScriptView*>(object);
    return view ? new ScriptViewAccessible(*view) : nullptr;
}

/// What a paragraph is, by the names that word processors have for it, which screen readers speak.
QString paragraphStyle(const ParagraphStyle& style) {
    switch (style.kind) {
    case ParagraphKind::body:
        return {};
    case ParagraphKind::heading:
        return u"paragraph-style:Heading %1;"_s.arg(style.headingLevel);
    case ParagraphKind::listItem:
        return u"paragraph-style:List;"_s;
    case ParagraphKind::quote:
        return u"paragraph-style:Quotations;"_s;
    case ParagraphKind::code:
        return u"paragraph-style:Preformatted Text;"_s;
    case ParagraphKind::rule:
        return u"paragraph-style:Horizontal Line;"_s;
    }
    Q_UNREACHABLE();
}

/// Text attributes in the form that screen readers expect.
QString describe(const TextAttributes& attributes, const ScriptView& view) {
    QString result;
    if (attributes.font) {
        const bool bold = attributes.font->weight == TextFont::Weight::bold;
        result += u"font-size:%1pt;"_s.arg(view.sizeOf(*attributes.font));
        result += u"font-weight:%1;"_s.arg(bold ? u"bold"_s : u"normal"_s);
        result += u"font-style:%1;"_s.arg(attributes.font->italic ? u"italic"_s : u"normal"_s);
    }
    if (attributes.strikethrough != 0) result += u"text-line-through-type:single;"_s;
    if (attributes.paragraph) result += paragraphStyle(*attributes.paragraph);
    return result;
}

} // namespace

void installScriptViewAccessibility() {
    QAccessible::installFactory(makeInterface);
}

ScriptViewAccessible::ScriptViewAccessible(ScriptView& scriptView)
    : QAccessibleWidget(&scriptView, QAccessible::EditableText) {}

ScriptViewAccessible::~ScriptViewAccessible() {
    forgetHeadings();
}

void ScriptViewAccessible::forgetHeadings() const {
    for (const Heading& heading : headings)
        if (heading.id != 0) QAccessible::deleteAccessibleInterface(heading.id);
    headings.clear();
}

void ScriptViewAccessible::findHeadings() const {
    const auto& script = view().reading().script();
    if (script == searchedScript) return;
    forgetHeadings();
    searchedScript = script;
    for (std::size_t i = 0; i < script->paragraphs.size(); ++i)
        if (script->headingLevel(i) > 0) headings.push_back({i, 0});
}

int ScriptViewAccessible::childCount() const {
    findHeadings();
    return QAccessibleWidget::childCount() + int(headings.size());
}

QAccessibleInterface* ScriptViewAccessible::child(int index) const {
    findHeadings();
    const int place = index - QAccessibleWidget::childCount();
    if (place < 0) return QAccessibleWidget::child(index);
    if (place >= int(headings.size())) return nullptr;
    Heading& heading = headings[std::size_t(place)];
    if (heading.id == 0) {
        auto made = std::make_unique<HeadingAccessible>(view(), heading.paragraph);
        heading.id = QAccessible::registerAccessibleInterface(made.release());
    }
    return QAccessible::accessibleInterface(heading.id);
}

int ScriptViewAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* heading = dynamic_cast<const HeadingAccessible*>(child);
    if (!heading) return QAccessibleWidget::indexOfChild(child);
    findHeadings();
    const auto found =
        std::find_if(headings.begin(), headings.end(), [&](const Heading& candidate) {
            return candidate.paragraph == heading->paragraph();
        });
    if (found == headings.end() || !heading->isValid()) return -1;
    return QAccessibleWidget::childCount() + int(found - headings.begin());
}

ScriptView& ScriptViewAccessible::view() const {
    return *static_cast<ScriptView*>(widget());
}

const Script& ScriptViewAccessible::script() const {
    return view().script();
}

void* ScriptViewAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State ScriptViewAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

void ScriptViewAccessible::selection(int selectionIndex, int* startOffset, int* endOffset) const {
    const bool exists = selectionIndex == 0 && selectionCount() == 1;
    const TextRange range = exists ? view().selection().range() : TextRange{};
    *startOffset = int(range.begin);
    *endOffset = int(range.end);
}

int ScriptViewAccessible::selectionCount() const {
    return view().selection().range().isEmpty() ? 0 : 1;
}

void ScriptViewAccessible::select(int anchor, int caret) {
    const auto clamped = [this](int offset) { return std::clamp(offset, 0, characterCount()); };
    TextSelection selection;
    selection.moveTo(clamped(anchor), false);
    selection.moveTo(clamped(caret), true);
    view().setSelection(selection);
}

void ScriptViewAccessible::addSelection(int startOffset, int endOffset) {
    select(startOffset, endOffset);
}

void ScriptViewAccessible::removeSelection(int selectionIndex) {
    if (selectionIndex == 0) select(cursorPosition(), cursorPosition());
}

void ScriptViewAccessible::setSelection(int selectionIndex, int startOffset, int endOffset) {
    if (selectionIndex == 0) select(startOffset, endOffset);
}

int ScriptViewAccessible::cursorPosition() const {
    return int(view().selection().caret());
}

void ScriptViewAccessible::setCursorPosition(int position) {
    select(position, position);
    view().reveal(cursorPosition());
}

QString ScriptViewAccessible::text(int startOffset, int endOffset) const {
    const int begin = std::clamp(startOffset, 0, characterCount());
    const int end =
        endOffset < 0 ? characterCount() : std::clamp(endOffset, begin, characterCount());
    return script().text(begin, end);
}

int ScriptViewAccessible::characterCount() const {
    return int(script().length());
}

QRect ScriptViewAccessible::characterRect(int offset) const {
    if (offset < 0 || offset > characterCount()) return {};
    const QRectF here = view().caretRect(offset);
    const QRectF next = view().caretRect(std::min(offset + 1, characterCount()));
    const bool sameLine = next.top() == here.top() && next.left() > here.left();
    const QRectF bounds(here.topLeft(),
                        QSizeF(sameLine ? next.left() - here.left() : 1.0, here.height()));
    return view().mirror().mirrored(bounds).toAlignedRect().translated(
        view().mapToGlobal(QPoint(0, 0)));
}

int ScriptViewAccessible::offsetAtPoint(const QPoint& point) const {
    return int(view().offsetAt(view().mirror().mirrored(QPointF(view().mapFromGlobal(point)))));
}

void ScriptViewAccessible::scrollToSubstring(int startIndex, int endIndex) {
    view().reveal(std::clamp(endIndex, 0, characterCount()));
    view().reveal(std::clamp(startIndex, 0, characterCount()));
}

QString ScriptViewAccessible::attributes(int offset, int* startOffset, int* endOffset) const {
    *startOffset = *endOffset = std::clamp(offset, 0, characterCount());
    const std::size_t index = script().paragraphOf(*startOffset);
    const Script::Paragraph& paragraph = script().paragraphs[index];
    for (const StyledText::Run& run : script().content(index).runs) {
        if (offset >= paragraph.start + run.start + run.length) continue;
        *startOffset = paragraph.start + run.start;
        *endOffset = *startOffset + run.length;
        return describe(script().styles[std::size_t(run.style)], view());
    }
    *endOffset = std::min(*startOffset + 1, characterCount()); // a newline
    return {};
}

} // namespace tessaline

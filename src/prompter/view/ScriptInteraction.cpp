#include "prompter/view/ScriptInteraction.h"

#include "platform/qt/KeyTranslation.h"
#include "prompter/view/ScriptView.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QTimerEvent>

#include <algorithm>

namespace tessaline {

namespace {

constexpr double pointsPerKeyLine = 20.0;
constexpr int dragIntervalMs = 16;
constexpr double dragShare = 0.15; // of the distance to the mouse, at every interval

/// Who turns another page meanwhile means the one after.
bool turnsPage(const QKeyEvent& event) {
    return event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown;
}

} // namespace

ScriptInteraction::ScriptInteraction(ScriptView& ownerView) : view(ownerView) {}

bool ScriptInteraction::keyPress(const QKeyEvent& event) {
    if (!event.isAutoRepeat() && !turnsPage(event)) view.jumps().stop();
    if (event.matches(QKeySequence::Copy)) {
        view.copySelection();
        return true;
    }
    if (event.matches(QKeySequence::SelectAll)) {
        TextSelection all;
        all.selectAll(view.script());
        view.setSelection(all);
        return true;
    }
    return selectByKey(event) || scrollByKey(event);
}

bool ScriptInteraction::scrollByKey(const QKeyEvent& event) {
    const double position = view.scrollPosition();
    const auto isPlain = (translateModifiers(event.modifiers()) & ~Modifier::control) == 0;
    if (!isPlain) return false;
    const bool isUnderWay = event.isAutoRepeat() && view.jumps().isUnderWay();
    switch (event.key()) {
    case Qt::Key_Up:
        view.scrollByHand(position - pointsPerKeyLine);
        return true;
    case Qt::Key_Down:
        view.scrollByHand(position + pointsPerKeyLine);
        return true;
    case Qt::Key_PageUp:
        if (!isUnderWay) view.jumps().toPreviousPage();
        return true;
    case Qt::Key_PageDown:
        if (!isUnderWay) view.jumps().toNextPage();
        return true;
    case Qt::Key_Home:
        if (!isUnderWay) view.jumps().toTop();
        return true;
    case Qt::Key_End:
        if (!isUnderWay) view.jumps().toEnd();
        return true;
    default:
        return false;
    }
}

bool ScriptInteraction::selectByKey(const QKeyEvent& event) {
    using Unit = TextSelection::Unit;
    const auto neighbour = [&](Unit unit, bool forward) {
        extendSelectionTo(view.selection().neighbour(view.script(), unit, forward));
        return true;
    };
    const auto line = [&](double points) {
        extendSelectionTo(offsetFromCaret(points));
        return true;
    };
    if (event.matches(QKeySequence::SelectNextChar)) return neighbour(Unit::character, true);
    if (event.matches(QKeySequence::SelectPreviousChar)) return neighbour(Unit::character, false);
    if (event.matches(QKeySequence::SelectNextWord)) return neighbour(Unit::word, true);
    if (event.matches(QKeySequence::SelectPreviousWord)) return neighbour(Unit::word, false);
    const double lineHeight = view.caretRect(view.selection().caret()).height();
    if (event.matches(QKeySequence::SelectNextLine)) return line(lineHeight);
    if (event.matches(QKeySequence::SelectPreviousLine)) return line(-lineHeight);
    if (event.matches(QKeySequence::SelectNextPage)) return line(view.height());
    if (event.matches(QKeySequence::SelectPreviousPage)) return line(-view.height());

    const qsizetype caret = view.selection().caret();
    const TextRange paragraph = unitAround(view.script(), caret, Unit::paragraph);
    if (event.matches(QKeySequence::SelectStartOfLine))
        return extendSelectionTo(paragraph.begin), true;
    if (event.matches(QKeySequence::SelectEndOfLine)) return extendSelectionTo(paragraph.end), true;
    if (event.matches(QKeySequence::SelectStartOfDocument)) return extendSelectionTo(0), true;
    if (event.matches(QKeySequence::SelectEndOfDocument))
        return extendSelectionTo(view.script().length()), true;
    return false;
}

void ScriptInteraction::extendSelectionTo(qsizetype offset) {
    TextSelection selection = view.selection();
    selection.moveTo(offset, true);
    view.setSelection(selection);
    view.reveal(offset);
}

qsizetype ScriptInteraction::offsetFromCaret(double points) const {
    const QRectF caret = view.caretRect(view.selection().caret());
    return view.offsetAt({caret.x(), caret.center().y() + points});
}

/// Where in the text as it is written.
QPointF ScriptInteraction::placeOf(const QMouseEvent& event) const {
    return view.mirror().mirrored(event.position());
}

void ScriptInteraction::selectUnitAt(const QPointF& point, TextSelection::Unit unit) {
    TextSelection selection;
    selection.selectUnit(view.script(), view.offsetAt(point), unit);
    view.setSelection(selection);
    dragUnit = unit;
}

void ScriptInteraction::mousePress(const QMouseEvent& event) {
    view.jumps().stop();
    if (event.button() != Qt::LeftButton) return;
    const QPointF point = placeOf(event);
    const bool isNear =
        (point - doubleClickPoint).manhattanLength() < QApplication::startDragDistance();
    const bool third = isNear && sinceDoubleClick.isValid() &&
                       sinceDoubleClick.elapsed() < QApplication::doubleClickInterval();
    sinceDoubleClick.invalidate();
    if (third) return selectUnitAt(point, TextSelection::Unit::paragraph);

    dragUnit = TextSelection::Unit::character;
    TextSelection selection = view.selection();
    selection.moveTo(view.offsetAt(point), event.modifiers().testFlag(Qt::ShiftModifier));
    view.setSelection(selection);
}

void ScriptInteraction::mouseDoubleClick(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return;
    doubleClickPoint = placeOf(event);
    selectUnitAt(doubleClickPoint, TextSelection::Unit::word);
    sinceDoubleClick.start();
}

void ScriptInteraction::mouseMove(const QMouseEvent& event) {
    if (event.buttons().testFlag(Qt::LeftButton)) dragTo(placeOf(event));
}

void ScriptInteraction::dragTo(const QPointF& point) {
    dragPoint = point;
    const bool isOutside = point.y() < 0 || point.y() > view.height();
    if (isOutside && !dragTimer.isActive()) dragTimer.start(dragIntervalMs, this);
    if (!isOutside) dragTimer.stop();
    TextSelection selection = view.selection();
    selection.extendByUnit(view.script(), view.offsetAt(point), dragUnit);
    view.setSelection(selection);
}

void ScriptInteraction::timerEvent(QTimerEvent* event) {
    if (event->timerId() != dragTimer.timerId()) return QObject::timerEvent(event);
    if (!QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) return dragTimer.stop();
    const double beyond = dragPoint.y() < 0 ? dragPoint.y() : dragPoint.y() - view.height();
    view.scrollByHand(view.scrollPosition() + beyond * dragShare);
    dragTo(dragPoint);
}

void ScriptInteraction::mouseRelease() {
    dragTimer.stop();
    QClipboard* clipboard = QApplication::clipboard();
    if (clipboard->supportsSelection() && !view.selection().range().isEmpty())
        clipboard->setText(view.selectedText(), QClipboard::Selection);
}

void ScriptInteraction::showMenu(const QContextMenuEvent& event) {
    QMenu menu(&view);
    QAction* copy = menu.addAction(ScriptView::tr("Copy"), &view, [this] { view.copySelection(); });
    copy->setShortcut(QKeySequence::Copy);
    copy->setEnabled(!view.selection().range().isEmpty());
    QAction* all = menu.addAction(ScriptView::tr("Select All"), &view, [this] {
        TextSelection selection;
        selection.selectAll(view.script());
        view.setSelection(selection);
    });
    all->setShortcut(QKeySequence::SelectAll);
    if (!view.actions().isEmpty()) menu.addSeparator();
    menu.addActions(view.actions());
    menu.exec(event.globalPos());
}

} // namespace tessaline

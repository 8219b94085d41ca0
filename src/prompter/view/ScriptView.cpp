#include "prompter/view/ScriptView.h"

#include "platform/qt/KeyTranslation.h"
#include "prompter/view/PreciseScrolling.h"
#include "prompter/view/ReadingGuidePainter.h"
#include "prompter/view/ScriptScroller.h"
#include "prompter/view/ScriptViewAccessible.h"
#include "reading/ReadingSession.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tessaline {

namespace {

constexpr double horizontalInset = 15.0;
constexpr double marginOfRevealed = 10.0;
constexpr double pointsPerWheelLine = 20.0;
constexpr double unitsPerWheelStep = 120.0; // as mice report one notch

/// Scripts up to this many UTF-16 units are laid out at once; longer ones in slices of so many,
/// short enough that no frame is late.
constexpr qsizetype unitsLaidOutAtOnce = 12000;
constexpr qsizetype unitsLaidOutPerSlice = 3000;

} // namespace

ScriptView::ScriptView(std::shared_ptr<ReadingSession> shown, QWidget* parent)
    : QWidget(parent)
    , session(std::move(shown))
    , frames([this](QPainter& painter, double top, double bottom) {
        painter.translate(horizontalInset, room.above);
        layout.draw(painter, top - room.above, bottom - room.above, currentSelection.range());
    })
    , scroller(new ScriptScroller(this))
    , interaction(*this)
    , scriptJumps(*this) {
    installScriptViewAccessibility();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::IBeamCursor);
    connect(scroller, &ScriptScroller::moved, this, &ScriptView::scrollTo);
    connect(scroller, &ScriptScroller::pressed, this, [this] { scriptJumps.stop(); });
    layout.setScript(session->script());
    updateRoom();
    session->addView(*this);
}

ScriptView::~ScriptView() {
    session->removeView(*this);
}

double ScriptView::documentHeight() const {
    return layout.height() + room.above + room.below;
}

double ScriptView::maximumScrollPosition() const {
    return std::max(documentHeight() - height(), 0.0);
}

void ScriptView::scrollTo(double position) {
    scriptJumps.stop();
    session->moveBy(position - scrollTop);
}

void ScriptView::scrollByHand(double position) {
    scroller->reveal();
    scrollTo(position);
}

void ScriptView::moveTo(qsizetype offset) {
    setPosition(positionOf(offset));
    measureVisible();
    setPosition(positionOf(offset));
}

void ScriptView::setPosition(double position) {
    const double clamped = std::clamp(position, 0.0, maximumScrollPosition());
    if (clamped == scrollTop) return;
    scrollTop = clamped;
    tellPlace();
    updateScroller();
    update();
    if (!idleTimer.isActive()) idleTimer.start(0, this); // which prepares strips
}

void ScriptView::tellPlace() {
    if (scrollTop == 0.0) return session->reached(*this, {});
    const double y = room.columnY(scrollTop);
    const std::size_t paragraph = layout.paragraphAt(y);
    const double height = std::max(layout.heightOf(paragraph), 1.0);
    session->reached(*this, {paragraph, (y - layout.topOf(paragraph)) / height});
}

double ScriptView::positionOf(const ReadingPlace& place) const {
    return room.positionOf(layout.topOf(place.paragraph) +
                           place.fraction * layout.heightOf(place.paragraph));
}

double ScriptView::positionOf(qsizetype offset) const {
    const std::size_t paragraph = script().paragraphOf(offset);
    if (readingFrame.isActive) return room.positionOf(layout.caretRect(offset).center().y());
    // The first one comes with the room above it, others without anything of those before them.
    if (offset == script().paragraphs[paragraph].start)
        return paragraph == 0 ? 0.0 : room.positionOf(layout.topOf(paragraph));
    return room.positionOf(layout.caretRect(offset).top());
}

std::size_t ScriptView::paragraphReadAt(double position) const {
    return layout.paragraphAt(room.columnY(position));
}

void ScriptView::setReadingFrame(const ReadingFrame& wanted) {
    if (wanted == readingFrame) return;
    const bool standsStill = wanted.isActive != readingFrame.isActive && scrollTop > 0.0;
    readingFrame = wanted;
    scriptJumps.setGliding(wanted.glides);
    if (readingFrame.isActive)
        keepPlaceDuring([this] { ReadingRoom::of(readingFrame, layout, height()); });
    const double above = room.above;
    updateRoom();
    if (standsStill) scrollTop += room.above - above;
    layoutChanged();
}

void ScriptView::updateRoom() {
    room = ReadingRoom::of(readingFrame, layout, height());
}

void ScriptView::scriptChanged(const Script& before, const ScriptChange& change, bool placeIsKept) {
    scriptJumps.stop();
    layout.setScript(session->script(), change);
    if (change.oldCount == 0 && change.newCount == 0) return;
    moveSelectionAcross(change, before);
    setAnew(placeIsKept);
    if (!QAccessible::isActive()) return;
    const TextChange text = change.textChange(before, script());
    if (text.removed == text.inserted) return;
    QAccessibleTextUpdateEvent event(this, int(text.begin), text.removed, text.inserted);
    QAccessible::updateAccessibility(&event);
}

void ScriptView::completeLayout() {
    if (layout.isMeasured()) return;
    layout.measureMore(std::numeric_limits<qsizetype>::max(), 0);
    scrollTop = positionOf(session->place());
    layoutChanged();
}

void ScriptView::moveSelectionAcross(const ScriptChange& change, const Script& before) {
    TextSelection moved;
    const auto movedOffset = [&](qsizetype offset) {
        return ScriptChange::movedOffset(offset, before, layout.script(), change);
    };
    moved.moveTo(movedOffset(currentSelection.anchor()), false);
    moved.moveTo(movedOffset(currentSelection.caret()), true);
    currentSelection = moved;
}

void ScriptView::setFontSize(double points) {
    if (points == layout.fontSize()) return;
    layout.setFontSize(points);
    setAnew(true);
}

void ScriptView::setLook(const ScriptLook& wanted) {
    if (wanted == look) return;
    const bool isSetAnew = wanted.typography != look.typography;
    look = wanted;
    frames.setLook(look.frame);
    scroller->place(mirror());
    layout.setTypography(look.typography);
    isSetAnew ? setAnew(true) : update();
}

void ScriptView::setAnew(bool atReadersPlace) {
    if (script().length() <= unitsLaidOutAtOnce) layout.measureMore(unitsLaidOutAtOnce + 1, 0);
    updateRoom();
    if (atReadersPlace) scrollTop = positionOf(session->place());
    layoutChanged();
}

void ScriptView::layoutChanged() {
    scrollTop = std::clamp(scrollTop, 0.0, maximumScrollPosition());
    session->linesChanged();
    tellPlace();
    frames.invalidate();
    updateScroller();
    update();
    if (layout.isMeasured()) {
        Q_EMIT layoutCompleted();
    } else {
        idleTimer.start(0, this);
    }
}

/// Does something that may lay paragraphs out: keeps what is seen in its place when that changes
/// heights, and tells when no paragraph is left. Returns whether heights changed.
template <typename Action>
bool ScriptView::keepPlaceDuring(Action action) {
    if (layout.isMeasured()) {
        action();
        return false;
    }
    const double height = layout.height();
    const bool atEnd = scrollTop > 0.0 && scrollTop == maximumScrollPosition();
    const std::size_t anchor = layout.paragraphAt(room.columnY(scrollTop));
    const double before = layout.topOf(anchor);
    action();
    const double moved = layout.topOf(anchor) - before;
    const bool changed = moved != 0.0 || layout.height() != height;
    if (changed) {
        if (scrollTop > 0.0) scrollTop += moved;
        const double maximum = maximumScrollPosition();
        scrollTop = atEnd ? maximum : std::clamp(scrollTop, 0.0, maximum);
        frames.invalidate();
        updateScroller();
        update();
    }
    tellPlace();
    if (layout.isMeasured()) Q_EMIT layoutCompleted();
    return changed;
}

/// Lays out all that the strips of the next frame show, so that drawing them changes no height.
void ScriptView::measureVisible() {
    constexpr int mostPasses = 4; // each may bring unmeasured paragraphs into sight
    const double strip = frames.stripHeight();
    for (int pass = 0; pass < mostPasses && !layout.isMeasured(); ++pass) {
        const double top = std::floor(scrollTop / strip) * strip - room.above;
        const double bottom = top + height() + 2 * strip;
        if (!keepPlaceDuring([&] { layout.measureBetween(top, bottom); })) return;
    }
}

void ScriptView::continueLayout() {
    keepPlaceDuring([this] { layout.measureMore(unitsLaidOutPerSlice, 0); });
}

void ScriptView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != idleTimer.timerId()) return QWidget::timerEvent(event);
    if (!layout.isMeasured()) return continueLayout();
    idleTimer.stop();
    frames.prepareAround(scrollTop);
}

void ScriptView::updateScroller() {
    scroller->show(scrollTop, maximumScrollPosition());
}

void ScriptView::resizeEvent(QResizeEvent*) {
    scroller->place(mirror());
    frames.fit(*this);
    const double textWidth = std::max(width() - 2 * horizontalInset, 1.0);
    if (textWidth == layout.textWidth()) {
        updateRoom();
        scrollTop = std::clamp(scrollTop, 0.0, maximumScrollPosition());
        tellPlace();
        return updateScroller();
    }
    layout.setTextWidth(textWidth);
    setAnew(true);
}

void ScriptView::paintEvent(QPaintEvent* event) {
    frames.fit(*this); // the screen, and with it the pixel ratio, may be another one now
    if (frames.isEmpty()) return;
    measureVisible();
    QPainter painter(this);
    const bool everywhere = event->region() == QRegion(rect());
    keepPlaceDuring([&] { frames.paint(painter, scrollTop, everywhere); });
    painter.setTransform(mirror().asTransform(), true);
    paintReadingGuide(painter, readingFrame, room, width());
}

void ScriptView::setSelection(const TextSelection& selection) {
    const TextRange before = currentSelection.range();
    const qsizetype caretBefore = currentSelection.caret();
    currentSelection = selection;
    const TextRange after = selection.range();
    if (after != before) {
        invalidateBetween(before.begin, after.begin);
        invalidateBetween(before.end, after.end);
        update();
        QAccessibleTextSelectionEvent event(this, int(after.begin), int(after.end));
        QAccessible::updateAccessibility(&event);
    } else if (selection.caret() != caretBefore) {
        QAccessibleTextCursorEvent event(this, int(selection.caret()));
        QAccessible::updateAccessibility(&event);
    }
}

/// Has what lies between two offsets drawn anew.
void ScriptView::invalidateBetween(qsizetype offset, qsizetype other) {
    if (offset == other) return;
    const double top = caretRect(std::min(offset, other)).top() + scrollTop;
    const double bottom = caretRect(std::max(offset, other)).bottom() + scrollTop;
    frames.invalidateBetween(top, bottom);
}

QString ScriptView::selectedText() const {
    const TextRange range = currentSelection.range();
    return script().text(range.begin, range.end);
}

void ScriptView::copySelection() const {
    if (!currentSelection.range().isEmpty()) QApplication::clipboard()->setText(selectedText());
}

QRectF ScriptView::caretRect(qsizetype offset) const {
    return layout.caretRect(offset).translated(horizontalInset, room.above - scrollTop);
}

double ScriptView::topOf(std::size_t paragraph) const {
    return layout.topOf(paragraph) + room.above;
}

std::vector<LineBox> ScriptView::linesBetween(double top, double bottom) {
    std::vector<LineBox> boxes;
    keepPlaceDuring([&] { boxes = layout.linesBetween(top - room.above, bottom - room.above); });
    for (LineBox& box : boxes)
        box.top += room.above;
    return boxes;
}

QRectF ScriptView::paragraphRect(std::size_t paragraph) const {
    const double top = layout.topOf(paragraph) + room.above - scrollTop;
    return {horizontalInset, top, layout.textWidth(), layout.heightOf(paragraph)};
}

qsizetype ScriptView::offsetAt(const QPointF& point) const {
    return layout.offsetAt({point.x() - horizontalInset, point.y() + scrollTop - room.above});
}

void ScriptView::reveal(qsizetype offset) {
    keepPlaceDuring([&] { layout.measureAt(offset); });
    const QRectF caret = caretRect(offset);
    if (caret.top() < 0) scrollTo(scrollTop + caret.top() - marginOfRevealed);
    if (caret.bottom() > height())
        scrollTo(scrollTop + caret.bottom() - height() + marginOfRevealed);
}

void ScriptView::wheelEvent(QWheelEvent* event) {
    if (translateModifiers(event->modifiers()) & Modifier::control) return event->ignore();
    const double steps = event->angleDelta().y() / unitsPerWheelStep;
    const double points = steps * QApplication::wheelScrollLines() * pointsPerWheelLine;
    scrollByHand(scrollTop - preciseScrolling(*event).value_or(points));
}

void ScriptView::keyPressEvent(QKeyEvent* event) {
    if (!interaction.keyPress(*event)) QWidget::keyPressEvent(event);
}

void ScriptView::mousePressEvent(QMouseEvent* event) {
    interaction.mousePress(*event);
}
void ScriptView::mouseMoveEvent(QMouseEvent* event) {
    interaction.mouseMove(*event);
}
void ScriptView::mouseReleaseEvent(QMouseEvent*) {
    interaction.mouseRelease();
}
void ScriptView::mouseDoubleClickEvent(QMouseEvent* event) {
    interaction.mouseDoubleClick(*event);
}
void ScriptView::contextMenuEvent(QContextMenuEvent* event) {
    interaction.showMenu(*event);
}

} // namespace tessaline

#pragma once

#include "prompter/layout/ScriptLayout.h"
#include "prompter/view/Mirror.h"
#include "prompter/view/ReadingFrame.h"
#include "prompter/view/ReadingRoom.h"
#include "prompter/view/ScriptFrames.h"
#include "prompter/view/ScriptInteraction.h"
#include "prompter/view/ScriptJumps.h"
#include "prompter/view/ScriptLook.h"
#include "prompter/view/TextSelection.h"
#include "reading/ReadingView.h"

#include <QBasicTimer>
#include <QWidget>

#include <memory>

namespace tessaline {

class ReadingSession;
class ScriptScroller;

/// Shows a session's script in a column that scrolls to fractions of a pixel, and moves the
/// session. Read-only; text can be selected with the mouse and the keyboard and copied. Frames are
/// put together from strips of text drawn ahead, so that scrolling lays nothing out, and nothing is
/// painted while nothing moves. Positions are points from the document's top.
class ScriptView : public QWidget, private ReadingView {
    Q_OBJECT

public:
    explicit ScriptView(std::shared_ptr<ReadingSession> session, QWidget* parent = nullptr);
    ~ScriptView() override;

    ReadingSession& reading() const { return *session; }
    const Script& script() const { return layout.script(); }

    /// Sets the size of body text in points; the reader keeps their place.
    void setFontSize(double points);

    /// Sets how the text looks; the reader keeps their place. What tells places in the view tells
    /// those of a text that is not turned over: `mirror` tells where they are seen.
    void setLook(const ScriptLook& wanted);
    Mirror mirror() const { return {look.frame.mirroring, size()}; }

    /// The size that a font of the script has here, in points.
    double sizeOf(const TextFont& font) const { return font.size + layout.fontGrowth(); }

    /// How far the document's top lies above the view's.
    double scrollPosition() const { return scrollTop; }

    double maximumScrollPosition() const; ///< the furthest that it can be scrolled
    /// The document's height with its margins. In part an estimate until `isLayoutComplete`.
    double documentHeight() const;

    /// Moves the session to where this is at the top; clamped to what there is.
    void scrollTo(double position);

    /// As above for a movement of the reader's hand: it shows the scroller for a moment.
    void scrollByHand(double position);

    /// Sets what the reader wants around the text, which stands still where it can.
    void setReadingFrame(const ReadingFrame& wanted);

    double eyeLine() const { return room.eyeLine; } ///< middle of the line being read, in the view

    /// The scroll position that has the middle of an offset's line at the eye line, if that is
    /// active, or the line and nothing of those before it at the top.
    double positionOf(qsizetype offset) const;

    std::size_t paragraphReadAt(double scrollPosition) const;

    ScriptJumps& jumps() { return scriptJumps; } ///< where to jump from here

    bool isLayoutComplete() const { return layout.isMeasured(); }
    void completeLayout(); ///< at once

    const TextSelection& selection() const { return currentSelection; }
    void setSelection(const TextSelection& selection);
    QString selectedText() const;
    void copySelection() const;

    /// Scrolls by the least amount that makes the text at an offset visible.
    void reveal(qsizetype offset);

    /// Where the caret before an offset is drawn, in the view's coordinates.
    QRectF caretRect(qsizetype offset) const;

    /// Where a paragraph is, with the spacing around it, in the view's coordinates. In part an
    /// estimate until `isLayoutComplete`.
    QRectF paragraphRect(std::size_t paragraph) const;

    qsizetype offsetAt(const QPointF& point) const; ///< nearest to a point there

Q_SIGNALS:
    /// The whole document has been laid out: its height is exact now.
    void layoutCompleted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void scriptChanged(const Script& before, const ScriptChange& change, bool placeIsKept) override;
    void moveBy(double points) override { setPosition(scrollTop + points); }
    void moveTo(qsizetype offset) override;
    void follow(const ReadingPlace& place) override { setPosition(positionOf(place)); }
    double distance() const override { return maximumScrollPosition(); }
    double readerPosition() const override { return scrollTop + eyeLine(); }
    double lastReaderPosition() const override { return maximumScrollPosition() + eyeLine(); }
    double topOf(std::size_t paragraph) const override;
    std::vector<LineBox> linesBetween(double top, double bottom) override;

    void setPosition(double position);
    void tellPlace();
    double positionOf(const ReadingPlace& place) const;
    void updateRoom();
    void moveSelectionAcross(const ScriptChange& change, const Script& before);
    template <typename Action>
    bool keepPlaceDuring(Action action);
    void measureVisible();
    void setAnew(bool atReadersPlace);
    void layoutChanged();
    void continueLayout();
    void updateScroller();
    void invalidateBetween(qsizetype offset, qsizetype other);

    std::shared_ptr<ReadingSession> session;
    ScriptLayout layout;
    ReadingFrame readingFrame;
    ReadingRoom room;
    ScriptLook look;
    ScriptFrames frames;
    ScriptScroller* scroller;
    ScriptInteraction interaction;
    ScriptJumps scriptJumps;
    TextSelection currentSelection;
    double scrollTop = 0.0;
    QBasicTimer idleTimer;
};

} // namespace tessaline

#pragma once

#include "prompter/layout/ScriptLayout.h"
#include "prompter/view/ScriptInteraction.h"
#include "prompter/view/StripCache.h"
#include "prompter/view/TextSelection.h"

#include <QBasicTimer>
#include <QImage>
#include <QWidget>

namespace tessaline {

class ThemedScroller;
class TimerMaker;

/// Shows a script in a column that scrolls to fractions of a pixel. Read-only; text can be selected
/// with the mouse and the keyboard and copied. Frames are put together from strips of text drawn
/// ahead, so that scrolling lays nothing out, and nothing is painted while nothing moves.
/// Positions are points from the document's top. Main thread only.
class ScriptView : public QWidget {
    Q_OBJECT

public:
    /// The timer maker must outlive the view.
    explicit ScriptView(TimerMaker& timers, QWidget* parent = nullptr);
    ~ScriptView() override;

    /// Replaces the text. What the reader has before the eyes stays there if the new text has it
    /// too; otherwise the scroll position stays, as far as the new length allows.
    void setScript(Script script);

    const Script& script() const { return layout.script(); }

    /// How far the document's top lies above the view's.
    double scrollPosition() const { return scrollTop; }

    /// The furthest that the document can be scrolled.
    double maximumScrollPosition() const;

    /// The document's height with its margins. In part an estimate until `isLayoutComplete`.
    double documentHeight() const;

    /// Moves the document; clamped to what there is.
    void scrollTo(double position);

    /// As above for a movement of the reader's hand: it shows the scroller for a moment.
    void scrollByHand(double position);

    /// Moves the next header below the view's top edge, or the last one above it, to the top. False
    /// when there is none.
    bool scrollToNextHeader();
    bool scrollToPreviousHeader();

    bool isLayoutComplete() const { return layout.isMeasured(); }

    /// Lays out all that has not been laid out so far, at once.
    void completeLayout();

    const TextSelection& selection() const { return currentSelection; }
    void setSelection(const TextSelection& selection);
    QString selectedText() const;
    void copySelection() const;

    /// Scrolls by the least amount that makes the text at an offset visible.
    void reveal(qsizetype offset);

    /// Where the caret before an offset is drawn, in the view's coordinates.
    QRectF caretRect(qsizetype offset);

    /// The offset nearest to a point in the view's coordinates.
    qsizetype offsetAt(const QPointF& point);

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
    /// A place in the text that stays the same when heights change.
    struct Place {
        std::size_t paragraph;
        double fraction; ///< of the paragraph's height
    };

    Place placeAtTop() const;
    void restorePlace(const Place& place);
    void keepPlaceAcross(const ScriptChange& change, std::size_t oldCount, const Place& place);
    void moveSelectionAcross(const ScriptChange& change, const Script& before);
    template <typename Action>
    bool keepPlaceDuring(Action action);
    void measureVisible();
    void layoutChanged();
    void continueLayout();
    double positionOf(std::size_t paragraph) const;
    void scrollToParagraph(std::size_t paragraph);
    void prepareStrips();
    void sizeFrame();
    void composeFrame();
    void updateScroller();
    void invalidateBetween(qsizetype offset, qsizetype other);

    ScriptLayout layout;
    StripCache strips;
    QImage frame;
    ThemedScroller* scroller;
    ScriptInteraction interaction;
    TextSelection currentSelection;
    double scrollTop = 0.0;
    QBasicTimer idleTimer;
};

} // namespace tessaline

#pragma once

#include "prompter/view/TextSelection.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QPointF>

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;

namespace tessaline {

class ScriptView;

/// What mouse and keys do in a script view: scrolling, selecting and copying, as in any read-only
/// text.
class ScriptInteraction : public QObject {
public:
    /// Borrows the view that owns it.
    explicit ScriptInteraction(ScriptView& view);

    /// Whether the key meant something here.
    bool keyPress(const QKeyEvent& event);

    void mousePress(const QMouseEvent& event);
    void mouseMove(const QMouseEvent& event);
    void mouseRelease();
    void mouseDoubleClick(const QMouseEvent& event);
    void showMenu(const QContextMenuEvent& event);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    bool scrollByKey(const QKeyEvent& event);
    bool selectByKey(const QKeyEvent& event);
    void extendSelectionTo(qsizetype offset);
    QPointF placeOf(const QMouseEvent& event) const;
    void selectUnitAt(const QPointF& point, TextSelection::Unit unit);
    void dragTo(const QPointF& point);
    qsizetype offsetFromCaret(double points) const;

    ScriptView& view;
    TextSelection::Unit dragUnit = TextSelection::Unit::character;
    QPointF dragPoint;
    QBasicTimer dragTimer; ///< goes on scrolling while the mouse is held outside of the view
    QElapsedTimer sinceDoubleClick;
    QPointF doubleClickPoint;
};

} // namespace tessaline

#pragma once

#include "prompter/covers/Cover.h"

#include <functional>
#include <memory>

class QLabel;

namespace tessaline {

class PressableButton;
class RepeatingTimer;
class ScriptView;
class TimerMaker;

/// A quiet line over the lower part of a text that tells what came of something, and may have a
/// button for what to do about it. It goes away by itself, by Escape and by a click; it takes no
/// keyboard, stops nothing, and is never over the eye line. Screen readers are told once.
class NoticeBar : public Cover {
    Q_OBJECT

public:
    /// For how many seconds a notice stays, without and with a button.
    static constexpr double tellingSeconds = 7.0;
    static constexpr double offeringSeconds = 10.0;

    /// Lies over the view, within the view's parent, hidden at first. Both are borrowed.
    NoticeBar(TimerMaker& timers, ScriptView& view);
    ~NoticeBar() override;

    /// Shows a text in place of what was shown. One that is empty hides it.
    void tell(const QString& text);

    /// The same with a button, which also ends the notice.
    void offer(const QString& text, const QString& button, std::function<void()> action);

    void dismiss();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void appear(const QString& text, double seconds);
    int fitButton(int room);
    void arrange();

    TimerMaker& timers;
    ScriptView& view;
    QLabel* label;
    PressableButton* button;
    std::function<void()> act;
    std::unique_ptr<RepeatingTimer> ending;
};

} // namespace tessaline

#pragma once

#include "prompter/covers/Countdown.h"
#include "prompter/covers/Cover.h"
#include "settings/ReadingChoices.h"

namespace tessaline {

/// Covers a text while its reader waits for it to move: large digits count the seconds down. Any
/// key or click in the window cancels the wait and does nothing else; modifiers alone and keys that
/// repeat do not count. Screen readers are told once.
class CountdownView : public Cover {
    Q_OBJECT

public:
    /// Hidden at first. Borrows the timers.
    CountdownView(TimerMaker& timers, QWidget* parent);

    /// Begins anew with so many seconds; with none it ends at once.
    void start(int seconds);

    /// Ends the wait without a signal.
    void stop();

    /// Turns the digits over, as the text below is.
    void setMirroring(Mirroring wanted);

Q_SIGNALS:
    void ended();
    void cancelled();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void counted();
    bool isOfThisWindow(const QObject& object) const;
    bool filterWhileCounting(QEvent& event);
    bool filterCancellingKey(const QEvent& event);
    void cancel();

    Countdown countdown;
    Mirroring mirroring = Mirroring::none;
    bool keyIsHeld = false; ///< the one that cancelled
};

} // namespace tessaline

#pragma once

#include "settings/ReadingChoices.h"

#include <QObject>
#include <QSize>

namespace tessaline {

class AppSettings;
class BlackCover;
class CountdownView;
class KeySheet;
class ReadingSession;
class ReadingSettings;
class TimerMaker;

/// What may lie over the text: the countdown, the black, and the sheet of keys. While the reader
/// waits for the countdown, or sees no text for the black, the text stands.
class TextCovers : public QObject {
    Q_OBJECT

public:
    /// Makes them in the widget that shows the text, which owns them. Borrows the others.
    TextCovers(AppSettings& settings, const ReadingSettings& reading, ReadingSession& session,
               TimerMaker& timers, QWidget& area);

    void resize(const QSize& size);

    /// Auto-scroll was switched: the reader may have asked for a moment before the text starts to
    /// move. Comes before the session hears of it.
    void waitIfAsked();

    /// Counts down, if there is something to wait for. Nobody can get ready by what they do not
    /// see: it begins anew once the text is in sight again.
    void countDown(bool isSeen);

    /// Turns over what is read there as the text is: not the keys.
    void setMirroring(Mirroring mirroring);

    void setBlack(bool on);
    bool isBlack() const;

    void setShowsKeys(bool on);
    bool showsKeys() const;

private:
    void setWaiting(bool on);
    void holdSession();

    AppSettings& settings;
    const ReadingSettings& reading;
    ReadingSession& session;
    CountdownView* const countdown;
    BlackCover* const black;
    KeySheet* const keys;
    bool isWaiting = false; ///< for the countdown
};

} // namespace tessaline

#include "prompter/covers/TextCovers.h"

#include "prompter/covers/BlackCover.h"
#include "prompter/covers/CountdownView.h"
#include "prompter/covers/KeySheet.h"
#include "reading/ReadingSession.h"
#include "settings/AppSettings.h"
#include "settings/ReadingSettings.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

TextCovers::TextCovers(AppSettings& appSettings, const ReadingSettings& readingSettings,
                       ReadingSession& shown, TimerMaker& timers, QWidget& area)
    : settings(appSettings)
    , reading(readingSettings)
    , session(shown)
    , countdown(new CountdownView(timers, &area))
    , black(new BlackCover(&area))
    , keys(new KeySheet(&area)) {
    countdown->setObjectName(u"prompter_countdown"_s);
    black->setObjectName(u"prompter_black"_s);
    keys->setObjectName(u"prompter_keys"_s);
    connect(countdown, &CountdownView::ended, this, [this] { setWaiting(false); });
    connect(countdown, &CountdownView::cancelled, this,
            [this] { settings.setAutoScrollEnabled(false); });
    connect(black, &BlackCover::pressed, this, [this] { setBlack(false); });
    connect(keys, &KeySheet::dismissed, this, [this] { setShowsKeys(false); });
}

void TextCovers::resize(const QSize& size) {
    countdown->resize(size);
    black->resize(size);
    keys->resize(size);
}

void TextCovers::waitIfAsked() {
    setWaiting(settings.autoScrollEnabled() && reading.values().countdownSeconds > 0.0);
}

void TextCovers::countDown(bool isSeen) {
    if (isWaiting && isSeen) {
        countdown->start(int(reading.values().countdownSeconds));
    } else {
        countdown->stop();
    }
}

void TextCovers::setMirroring(Mirroring mirroring) {
    countdown->setMirroring(mirroring);
}

void TextCovers::setBlack(bool on) {
    black->setBlack(on);
    holdSession();
}

bool TextCovers::isBlack() const {
    return !black->isHidden();
}

void TextCovers::setShowsKeys(bool on) {
    keys->setVisible(on);
    keys->raise();
    on ? keys->setFocus() : keys->window()->setFocus();
}

bool TextCovers::showsKeys() const {
    return !keys->isHidden();
}

void TextCovers::setWaiting(bool on) {
    isWaiting = on;
    holdSession();
}

void TextCovers::holdSession() {
    session.setHeld(isWaiting || isBlack());
}

} // namespace tessaline

#include "ui/reading/NamePopup.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

namespace tessaline {

void NamePopup::keyPressEvent(QKeyEvent* event) {
    const bool isTyping =
        sinceTyped.isValid() && sinceTyped.elapsed() < QApplication::keyboardInputInterval();
    if (event->key() == Qt::Key_Space && isTyping) {
        view()->keyboardSearch(event->text());
        setCurrentIndex(view()->currentIndex().row());
    } else {
        PopupButton::keyPressEvent(event);
    }
    const bool isName = !event->text().isEmpty() && event->text().front().isPrint();
    if (isName && (isTyping || event->key() != Qt::Key_Space)) sinceTyped.start();
}

} // namespace tessaline

#include "platform/qt/QuitRequests.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace tessaline {

QuitRequests::QuitRequests(std::function<void()> quitProgram) : quit(std::move(quitProgram)) {}

bool QuitRequests::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::Quit || object != QCoreApplication::instance()) return false;
    event->accept();
    quit();
    return true;
}

} // namespace tessaline

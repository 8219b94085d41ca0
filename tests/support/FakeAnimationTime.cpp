#include "support/FakeAnimationTime.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace tessaline {

namespace {

constexpr double frameMilliseconds = 4.0;

} // namespace

FakeAnimationTime::FakeAnimationTime() {
    // Animations of an earlier test, and then the clock of all, end with turns of the event loop:
    // what begins while that clock still runs begins with the real time since then.
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    install();
}

FakeAnimationTime::~FakeAnimationTime() {
    uninstall();
}

void FakeAnimationTime::pass(double seconds) {
    const double end = now + seconds * 1000;
    while (now < end) {
        // Animations begin with the next turn of the event loop.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        now = std::min(now + frameMilliseconds, end);
        if (isRunning()) advance();
    }
}

qint64 FakeAnimationTime::elapsed() const {
    return isRunning() ? qint64(now - startedAt) : 0;
}

void FakeAnimationTime::start() {
    startedAt = now;
    QAnimationDriver::start();
}

} // namespace tessaline

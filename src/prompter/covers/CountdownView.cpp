#include "prompter/covers/CountdownView.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "prompter/view/Mirror.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

constexpr double coverAlpha = 0.8;
constexpr double digitHeight = 0.5; // of the text's
constexpr double mostWidth = 0.8;
constexpr double outlinePoints = 100.0;

bool isModifier(int key) {
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
        return true;
    default:
        return false;
    }
}

/// A number's outline in the middle of an area.
QPainterPath outlineOf(int number, const QRectF& area) {
    const QFont font = systemFont(outlinePoints, QFont::DemiBold);
    QPainterPath digits;
    digits.addText(QPointF(), font, QString::number(number));
    QPainterPath zero;
    zero.addText(QPointF(), font, QStringLiteral("0"));
    const QRectF ink = digits.boundingRect();
    const double scale = std::min(area.height() * digitHeight / zero.boundingRect().height(),
                                  area.width() * mostWidth / ink.width());
    QTransform place;
    place.translate(area.center().x(), area.center().y());
    place.scale(scale, scale);
    place.translate(-ink.center().x(), -zero.boundingRect().center().y());
    return place.map(digits);
}

} // namespace

CountdownView::CountdownView(TimerMaker& timers, QWidget* parent)
    : Cover(parent), countdown(timers, [this] { counted(); }) {
    setAccessibleDescription(tr("Any key or click cancels"));
    setAttribute(Qt::WA_TransparentForMouseEvents); // the wheel moves the text below
}

void CountdownView::start(int seconds) {
    setAccessibleName(tr("The text starts to move in %1 s").arg(seconds));
    keyIsHeld = false;
    if (seconds > 0) QCoreApplication::instance()->installEventFilter(this);
    countdown.start(seconds);
    announce();
}

void CountdownView::stop() {
    countdown.stop();
    hide();
    if (!keyIsHeld) QCoreApplication::instance()->removeEventFilter(this);
}

void CountdownView::setMirroring(Mirroring wanted) {
    mirroring = wanted;
    update();
}

void CountdownView::counted() {
    setVisible(countdown.secondsLeft() > 0);
    update();
    if (countdown.secondsLeft() > 0) return;
    stop();
    Q_EMIT ended();
}

void CountdownView::cancel() {
    stop();
    Q_EMIT cancelled();
}

bool CountdownView::isOfThisWindow(const QObject& object) const {
    if (&object == window()->windowHandle()) return true;
    const auto* widget = qobject_cast<const QWidget*>(&object);
    return widget && widget->window() == window();
}

bool CountdownView::eventFilter(QObject* watched, QEvent* event) {
    if (!isOfThisWindow(*watched)) return false;
    return keyIsHeld ? filterCancellingKey(*event) : filterWhileCounting(*event);
}

bool CountdownView::filterWhileCounting(QEvent& event) {
    switch (event.type()) {
    case QEvent::ShortcutOverride: // else a menu's key would never come here
        event.accept();
        return true;
    case QEvent::KeyPress: {
        const auto& key = static_cast<const QKeyEvent&>(event);
        if (key.isAutoRepeat()) return true;
        if (isModifier(key.key())) return false;
        keyIsHeld = true;
        cancel();
        return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        cancel();
        return true;
    default:
        return false;
    }
}

/// The key that cancelled does nothing else until it is let go.
bool CountdownView::filterCancellingKey(const QEvent& event) {
    const bool isPress =
        event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride;
    if (!isPress && event.type() != QEvent::KeyRelease) return false;
    if (static_cast<const QKeyEvent&>(event).isAutoRepeat()) return true;
    keyIsHeld = false;
    QCoreApplication::instance()->removeEventFilter(this);
    return !isPress;
}

void CountdownView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), SystemPalette::withAlpha(SystemPalette::black, coverAlpha));
    painter.setTransform(Mirror(mirroring, size()).asTransform(), true);
    painter.fillPath(outlineOf(countdown.secondsLeft(), rect()), SystemPalette::amber());
}

} // namespace tessaline

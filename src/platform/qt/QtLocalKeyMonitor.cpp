#include "platform/qt/QtLocalKeyMonitor.h"

#include <QGuiApplication>
#include <QInputMethodQueryEvent>
#include <QKeyEvent>
#include <QWindow>

#include <utility>

namespace tessaline {

namespace {

/// Whether what is typed goes into a text.
bool isTyping() {
    QObject* focus = QGuiApplication::focusObject();
    if (!focus) return false;
    QInputMethodQueryEvent query(Qt::ImEnabled | Qt::ImReadOnly);
    QCoreApplication::sendEvent(focus, &query);
    return query.value(Qt::ImEnabled).toBool() && !query.value(Qt::ImReadOnly).toBool();
}

class KeyFilter final : public QObject, public LocalKeyMonitor::Registration {
public:
    KeyFilter(LocalKeyMonitor::Handler keyHandler, KeyTranslation keyTranslation)
        : handler(std::move(keyHandler)), translation(keyTranslation) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // Qt hands a key to the window first, then on to widgets in it.
        if (event->type() != QEvent::KeyPress || !watched->isWindowType())
            return QObject::eventFilter(watched, event);
        const auto& key = static_cast<const QKeyEvent&>(*event);
        return !isPasteIntoField(key) && handler(translateKey(key, translation));
    }

private:
    bool isPasteIntoField(const QKeyEvent& key) const {
        return translation == KeyTranslation::control && key.key() == Qt::Key_V &&
               key.modifiers() == Qt::ControlModifier && isTyping();
    }

    LocalKeyMonitor::Handler handler;
    KeyTranslation translation;
};

} // namespace

QtLocalKeyMonitor::QtLocalKeyMonitor(KeyTranslation keyTranslation) : translation(keyTranslation) {}

std::unique_ptr<LocalKeyMonitor::Registration> QtLocalKeyMonitor::start(Handler handler) {
    return std::make_unique<KeyFilter>(std::move(handler), translation);
}

} // namespace tessaline

#include "platform/linux/desktop/DesktopStatusArea.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestAnswer = 1000; // milliseconds

QString watcherName() {
    return u"org.kde.StatusNotifierWatcher"_s;
}

/// Whether somebody shows the items that are announced over D-Bus. The watcher alone, which keeps
/// their list, shows nothing.
bool hasStatusNotifierHost() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(watcherName())) return false;
    auto question = QDBusMessage::createMethodCall(watcherName(), u"/StatusNotifierWatcher"_s,
                                                   u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << watcherName() << u"IsStatusNotifierHostRegistered"_s;
    const QDBusMessage answer = bus.call(question, QDBus::Block, longestAnswer);
    if (answer.type() != QDBusMessage::ReplyMessage) return false;
    return answer.arguments().value(0).value<QDBusVariant>().variant().toBool();
}

} // namespace

DesktopStatusArea::DesktopStatusArea(std::function<bool()> serverHasTray)
    : hasTray(std::move(serverHasTray)) {}

bool DesktopStatusArea::isThere() const {
    return hasStatusNotifierHost() || hasTray();
}

QImage DesktopStatusArea::symbol(const QString& /*name*/, const QString& /*description*/) const {
    return {};
}

} // namespace tessaline

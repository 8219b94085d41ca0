#include "platform/SystemAdapters.h"
#include "platform/linux/x11/XcbAtom.h"
#include "platform/linux/x11/XcbReply.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QGuiApplication>

#include <xcb/xcb.h>

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

/// Whether a panel takes icons as windows.
bool hasTrayWindow() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11) return false;
    xcb_connection_t* connection = x11->connection();
    static const auto traySelection = xcbAtom(connection, "_NET_SYSTEM_TRAY_S0");
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, traySelection), nullptr));
    return reply && reply->owner != XCB_NONE;
}

} // namespace

bool hasStatusArea() {
    return hasStatusNotifierHost() || hasTrayWindow();
}

} // namespace tessaline

#include "platform/linux/desktop/MprisService.h"

#include "platform/linux/desktop/MprisInterfaces.h"

#include <QCoreApplication>
#include <QDBusMessage>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QString connectionName() {
    return u"tessaline-media"_s;
}

QString path() {
    return u"/org/mpris/MediaPlayer2"_s;
}

} // namespace

MprisService::MprisService(const MediaControls::Playing& playing, MediaControls::Player& player)
    : current(playing)
    , owner(player)
    , bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName())) {
    new MprisRoot(*this);
    new MprisPlayer(*this);
    bus.registerObject(path(), this);
    const QString name = u"org.mpris.MediaPlayer2.tessaline"_s;
    if (bus.registerService(name)) return;
    // Another Tessaline of this user plays on another display.
    bus.registerService(name + u".instance%1"_s.arg(QCoreApplication::applicationPid()));
}

MprisService::~MprisService() {
    QDBusConnection::disconnectFromBus(connectionName());
}

void MprisService::show(const MediaControls::Playing& playing) {
    const MediaControls::Playing before = std::exchange(current, playing);
    announce(findChild<MprisPlayer*>()->changedSince(before));
}

void MprisService::tellJump() {
    auto* interface = findChild<MprisPlayer*>();
    Q_EMIT interface->Seeked(interface->position());
}

void MprisService::announce(const QVariantMap& changed) {
    if (changed.isEmpty()) return;
    auto signal = QDBusMessage::createSignal(path(), u"org.freedesktop.DBus.Properties"_s,
                                             u"PropertiesChanged"_s);
    signal << u"org.mpris.MediaPlayer2.Player"_s << changed << QStringList();
    bus.send(signal);
}

} // namespace tessaline

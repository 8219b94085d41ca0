#pragma once

#include "platform/MediaControls.h"

#include <QDBusConnection>
#include <QObject>

namespace tessaline {

/// A player's presence on the session bus, by a connection of its own.
class MprisService : public QObject {
    Q_OBJECT

public:
    /// Comes up at once, if there is a bus. Borrows the player.
    MprisService(const MediaControls::Playing& playing, MediaControls::Player& player);
    ~MprisService() override;

    void show(const MediaControls::Playing& playing);
    void tellJump();

    const MediaControls::Playing& playing() const { return current; }
    MediaControls::Player& player() const { return owner; }

private:
    void announce(const QVariantMap& changed);

    MediaControls::Playing current;
    MediaControls::Player& owner;
    QDBusConnection bus;
};

} // namespace tessaline

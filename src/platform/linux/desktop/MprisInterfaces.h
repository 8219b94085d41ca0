#pragma once

#include "platform/MediaControls.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QStringList>
#include <QVariantMap>

namespace tessaline {

class MprisService;

/// What every media player says of itself. The names are those of the interface.
class MprisRoot : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit READ yes CONSTANT)
    Q_PROPERTY(bool CanRaise READ yes CONSTANT)
    Q_PROPERTY(bool HasTrackList READ no CONSTANT)
    Q_PROPERTY(QString Identity READ identity CONSTANT)
    Q_PROPERTY(QString DesktopEntry READ desktopEntry CONSTANT)
    Q_PROPERTY(QStringList SupportedUriSchemes READ none CONSTANT)
    Q_PROPERTY(QStringList SupportedMimeTypes READ none CONSTANT)

public:
    explicit MprisRoot(MprisService& service);

    bool yes() const { return true; }
    bool no() const { return false; }
    QString identity() const { return QStringLiteral("Tessaline"); }
    QString desktopEntry() const { return QStringLiteral("app.tessaline.Tessaline"); }
    QStringList none() const { return {}; }

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    void Raise();
    void Quit();

private:
    MprisService& service;
};

/// How a media player is driven. Times are microseconds there.
class MprisPlayer : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
    Q_PROPERTY(QString PlaybackStatus READ playbackStatus)
    Q_PROPERTY(double Rate READ rate WRITE setRate)
    Q_PROPERTY(double MinimumRate READ minimumRate)
    Q_PROPERTY(double MaximumRate READ maximumRate)
    Q_PROPERTY(double Volume READ volume WRITE setVolume)
    Q_PROPERTY(QVariantMap Metadata READ metadata)
    Q_PROPERTY(qlonglong Position READ position)
    Q_PROPERTY(bool CanGoNext READ yes CONSTANT)
    Q_PROPERTY(bool CanGoPrevious READ yes CONSTANT)
    Q_PROPERTY(bool CanPlay READ yes CONSTANT)
    Q_PROPERTY(bool CanPause READ yes CONSTANT)
    Q_PROPERTY(bool CanSeek READ yes CONSTANT)
    Q_PROPERTY(bool CanControl READ yes CONSTANT)

public:
    explicit MprisPlayer(MprisService& service);

    bool yes() const { return true; }
    QString playbackStatus() const;
    double rate() const;
    void setRate(double rate);
    double minimumRate() const;
    double maximumRate() const;
    double volume() const { return 1.0; }
    void setVolume(double) {}
    QVariantMap metadata() const;
    qlonglong position() const;

    /// Those of these that a change between two states is to be told of.
    QVariantMap changedSince(const MediaControls::Playing& before) const;

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    void Play();
    void Pause();
    void PlayPause();
    void Stop();
    void Next();
    void Previous();
    void Seek(qlonglong offset);
    void SetPosition(const QDBusObjectPath& track, qlonglong position);

Q_SIGNALS:
    void Seeked(qlonglong position);

private:
    void wish(MediaControls::Wish::Deed deed, double number = 0.0);

    MprisService& service;
};

} // namespace tessaline

#include "platform/linux/desktop/MprisInterfaces.h"

#include "platform/linux/desktop/MprisService.h"

#include <algorithm>
#include <cmath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
using Deed = MediaControls::Wish::Deed;

namespace {

constexpr double microseconds = 1e6; // in a second

QDBusObjectPath trackPath() {
    return QDBusObjectPath(u"/app/tessaline/Tessaline/Script"_s);
}

qlonglong fromSeconds(double seconds) {
    return qlonglong(std::llround(seconds * microseconds));
}

} // namespace

MprisRoot::MprisRoot(MprisService& owner) : QDBusAbstractAdaptor(&owner), service(owner) {}

void MprisRoot::Raise() {
    service.player().carryOut({Deed::show});
}

void MprisRoot::Quit() {
    service.player().carryOut({Deed::quit});
}

MprisPlayer::MprisPlayer(MprisService& owner) : QDBusAbstractAdaptor(&owner), service(owner) {}

QString MprisPlayer::playbackStatus() const {
    return service.playing().moves ? u"Playing"_s : u"Paused"_s;
}

double MprisPlayer::rate() const {
    return service.playing().rate;
}

double MprisPlayer::minimumRate() const {
    return service.playing().leastRate;
}

double MprisPlayer::maximumRate() const {
    return service.playing().mostRate;
}

/// A rate of 0 is how some say that they want a pause.
void MprisPlayer::setRate(double rate) {
    if (rate == 0.0) return Pause();
    if (std::isfinite(rate)) wish(Deed::setRate, std::clamp(rate, minimumRate(), maximumRate()));
}

QVariantMap MprisPlayer::metadata() const {
    return {{u"mpris:trackid"_s, QVariant::fromValue(trackPath())},
            {u"mpris:length"_s, fromSeconds(service.playing().seconds)},
            {u"xesam:title"_s, service.playing().title}};
}

qlonglong MprisPlayer::position() const {
    return fromSeconds(service.player().secondsPlayed());
}

QVariantMap MprisPlayer::changedSince(const MediaControls::Playing& before) const {
    const MediaControls::Playing& now = service.playing();
    QVariantMap changed;
    if (now.moves != before.moves) changed[u"PlaybackStatus"_s] = playbackStatus();
    if (now.rate != before.rate) changed[u"Rate"_s] = rate();
    if (now.leastRate != before.leastRate) changed[u"MinimumRate"_s] = minimumRate();
    if (now.mostRate != before.mostRate) changed[u"MaximumRate"_s] = maximumRate();
    if (now.title != before.title || now.seconds != before.seconds)
        changed[u"Metadata"_s] = metadata();
    return changed;
}

void MprisPlayer::wish(Deed deed, double number) {
    service.player().carryOut({deed, number});
}

void MprisPlayer::Play() {
    wish(Deed::play);
}

void MprisPlayer::Pause() {
    wish(Deed::pause);
}

void MprisPlayer::PlayPause() {
    wish(Deed::playOrPause);
}

void MprisPlayer::Stop() {
    wish(Deed::stop);
}

void MprisPlayer::Next() {
    wish(Deed::next);
}

void MprisPlayer::Previous() {
    wish(Deed::previous);
}

void MprisPlayer::Seek(qlonglong offset) {
    wish(Deed::moveBy, double(offset) / microseconds);
}

/// What is meant for another track, or lies outside of this one, comes too late.
void MprisPlayer::SetPosition(const QDBusObjectPath& track, qlonglong position) {
    const bool isWithin = position >= 0 && position <= fromSeconds(service.playing().seconds);
    if (track == trackPath() && isWithin) wish(Deed::goTo, double(position) / microseconds);
}

} // namespace tessaline

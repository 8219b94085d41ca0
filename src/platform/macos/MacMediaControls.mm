#include "platform/MediaControls.h"
#include "platform/macos/MacAdapters.h"

#import <Foundation/Foundation.h>
#import <MediaPlayer/MediaPlayer.h>

#include <vector>

namespace tessaline {

namespace {

using Deed = MediaControls::Wish::Deed;

/// The system's player widget and the keys that drive it.
class MacMediaControls final : public MediaControls {
public:
    ~MacMediaControls() override { withdraw(); }

    void show(const Playing& playing, Player& shownPlayer) override {
        shown = playing;
        if (!player) {
            player = &shownPlayer;
            addTargets();
        }
        tell();
    }

    void tellJump() override {
        if (player) tell();
    }

    void withdraw() override {
        if (!player) return;
        for (const Target& target : targets)
            [target.command removeTarget:target.handle];
        targets.clear();
        player = nullptr;
        MPNowPlayingInfoCenter.defaultCenter.nowPlayingInfo = nil;
        MPNowPlayingInfoCenter.defaultCenter.playbackState = MPNowPlayingPlaybackStateStopped;
    }

private:
    struct Target {
        MPRemoteCommand* command;
        id handle;
    };

    void tell() {
        MPNowPlayingInfoCenter* center = MPNowPlayingInfoCenter.defaultCenter;
        center.nowPlayingInfo = @{
            MPMediaItemPropertyTitle : shown.title.toNSString(),
            MPMediaItemPropertyPlaybackDuration : @(shown.seconds),
            MPNowPlayingInfoPropertyElapsedPlaybackTime : @(player->secondsPlayed()),
            MPNowPlayingInfoPropertyPlaybackRate : @(shown.moves ? shown.rate : 0.0),
        };
        center.playbackState =
            shown.moves ? MPNowPlayingPlaybackStatePlaying : MPNowPlayingPlaybackStatePaused;
    }

    void addTargets() {
        MPRemoteCommandCenter* center = MPRemoteCommandCenter.sharedCommandCenter;
        add(center.playCommand, Deed::play);
        add(center.pauseCommand, Deed::pause);
        add(center.togglePlayPauseCommand, Deed::playOrPause);
        add(center.stopCommand, Deed::stop);
        add(center.nextTrackCommand, Deed::next);
        add(center.previousTrackCommand, Deed::previous);
        add(center.changePlaybackPositionCommand, Deed::goTo, [](MPRemoteCommandEvent* event) {
            return static_cast<MPChangePlaybackPositionCommandEvent*>(event).positionTime;
        });
        add(center.changePlaybackRateCommand, Deed::setRate, [](MPRemoteCommandEvent* event) {
            return double(static_cast<MPChangePlaybackRateCommandEvent*>(event).playbackRate);
        });
    }

    using Number = double (*)(MPRemoteCommandEvent* event);

    void add(
        MPRemoteCommand* command, Deed deed,
        Number number = [](MPRemoteCommandEvent*) { return 0.0; }) {
        id handle =
            [command addTargetWithHandler:^MPRemoteCommandHandlerStatus(MPRemoteCommandEvent* e) {
              player->carryOut({deed, number(e)});
              return MPRemoteCommandHandlerStatusSuccess;
            }];
        targets.push_back({command, handle});
    }

    Playing shown;
    Player* player = nullptr; ///< while something plays
    std::vector<Target> targets;
};

} // namespace

std::unique_ptr<MediaControls> makeMediaControls() {
    return std::make_unique<MacMediaControls>();
}

} // namespace tessaline

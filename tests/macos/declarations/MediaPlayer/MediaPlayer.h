#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

extern "C" NSString* const MPMediaItemPropertyTitle;
extern "C" NSString* const MPMediaItemPropertyPlaybackDuration;
extern "C" NSString* const MPNowPlayingInfoPropertyElapsedPlaybackTime;
extern "C" NSString* const MPNowPlayingInfoPropertyPlaybackRate;

typedef NS_ENUM(NSUInteger, MPNowPlayingPlaybackState) {
    MPNowPlayingPlaybackStatePlaying = 1,
    MPNowPlayingPlaybackStatePaused = 2,
    MPNowPlayingPlaybackStateStopped = 3,
};

@interface MPNowPlayingInfoCenter : NSObject
+ (MPNowPlayingInfoCenter*)defaultCenter;
@property(nullable, copy) NSDictionary<NSString*, id>* nowPlayingInfo;
@property MPNowPlayingPlaybackState playbackState;
@end

typedef NS_ENUM(NSInteger, MPRemoteCommandHandlerStatus) {
    MPRemoteCommandHandlerStatusSuccess = 0,
};

@interface MPRemoteCommandEvent : NSObject
@end

@interface MPChangePlaybackPositionCommandEvent : MPRemoteCommandEvent
@property(readonly) double positionTime;
@end

@interface MPChangePlaybackRateCommandEvent : MPRemoteCommandEvent
@property(readonly) float playbackRate;
@end

@interface MPRemoteCommand : NSObject
- (id)addTargetWithHandler:(MPRemoteCommandHandlerStatus (^)(MPRemoteCommandEvent* event))handler;
- (void)removeTarget:(nullable id)target;
@end

@interface MPChangePlaybackPositionCommand : MPRemoteCommand
@end

@interface MPChangePlaybackRateCommand : MPRemoteCommand
@end

@interface MPRemoteCommandCenter : NSObject
+ (MPRemoteCommandCenter*)sharedCommandCenter;
@property(readonly) MPRemoteCommand* playCommand;
@property(readonly) MPRemoteCommand* pauseCommand;
@property(readonly) MPRemoteCommand* togglePlayPauseCommand;
@property(readonly) MPRemoteCommand* stopCommand;
@property(readonly) MPRemoteCommand* nextTrackCommand;
@property(readonly) MPRemoteCommand* previousTrackCommand;
@property(readonly) MPChangePlaybackPositionCommand* changePlaybackPositionCommand;
@property(readonly) MPChangePlaybackRateCommand* changePlaybackRateCommand;
@end

#pragma clang assume_nonnull end

#pragma once

#include <ApplicationServices/ApplicationServices.h>
#include <Foundation/Foundation.h>

@class NSGraphicsContext;
@class NSImageRep;

#pragma clang assume_nonnull begin

@interface NSAppearance : NSObject
+ (nullable NSAppearance*)appearanceNamed:(NSString*)name;
@end
extern "C" NSString* const NSAppearanceNameDarkAqua;

typedef NSInteger NSWindowLevel;
static const NSWindowLevel NSScreenSaverWindowLevel = 1000;

typedef NS_ENUM(NSUInteger, NSWindowSharingType) { NSWindowSharingNone = 0 };
typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
    NSWindowCollectionBehaviorCanJoinAllSpaces = 1 << 0,
    NSWindowCollectionBehaviorStationary = 1 << 4,
    NSWindowCollectionBehaviorIgnoresCycle = 1 << 6,
};

@interface NSWindow : NSObject
@property(copy) NSString* title;
@property NSWindowLevel level;
@property NSWindowSharingType sharingType;
@property NSWindowCollectionBehavior collectionBehavior;
@property BOOL hasShadow;
@property BOOL ignoresMouseEvents;
@property(readonly, getter=isKeyWindow) BOOL keyWindow;
- (void)makeKeyWindow;
@end

@interface NSView : NSObject
@property(nullable, readonly, assign) NSWindow* window;
@end

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular = 0,
    NSApplicationActivationPolicyAccessory = 1,
};

@interface NSApplication : NSObject
@property(nullable, strong) NSAppearance* appearance;
@property(readonly, getter=isActive) BOOL active;
@property(nullable, readonly, weak) NSWindow* keyWindow;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (void)activateIgnoringOtherApps:(BOOL)flag;
@end
extern "C" __kindof NSApplication* _Null_unspecified NSApp;

typedef NS_OPTIONS(NSUInteger, NSApplicationActivationOptions) {
    NSApplicationActivateAllWindows = 1 << 0,
};

@interface NSRunningApplication : NSObject
@property(class, readonly, strong) NSRunningApplication* currentApplication;
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options;
@end

@interface NSImage : NSObject
@property NSSize size;
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description;
- (nullable CGImageRef)CGImageForProposedRect:(nullable NSRect*)proposedDestRect
                                      context:(nullable NSGraphicsContext*)referenceContext
                                        hints:(nullable NSDictionary<NSString*, id>*)hints;
@end

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(nullable, readonly, strong) NSRunningApplication* menuBarOwningApplication;
- (NSImage*)iconForFile:(NSString*)fullPath;
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier;
@end

typedef NS_OPTIONS(unsigned long long, NSEventMask) {
    NSEventMaskLeftMouseUp = 1ULL << 2,
    NSEventMaskMouseMoved = 1ULL << 5,
    NSEventMaskKeyDown = 1ULL << 10,
};
typedef NS_OPTIONS(NSUInteger, NSEventModifierFlags) { NSEventModifierFlagCommand = 1 << 20 };

@interface NSEvent : NSObject
@property(readonly) NSEventModifierFlags modifierFlags;
@property(readonly) unsigned short keyCode;
@property(readonly, getter=isARepeat) BOOL ARepeat;
@property(readonly) BOOL hasPreciseScrollingDeltas;
@property(readonly) CGFloat scrollingDeltaY;
- (nullable NSString*)charactersByApplyingModifiers:(NSEventModifierFlags)modifiers;
+ (nullable NSEvent*)eventWithCGEvent:(CGEventRef)cgEvent;
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask
                                             handler:(void (^)(NSEvent*))block;
+ (void)removeMonitor:(id)eventMonitor;
@end

typedef NSInteger NSModalResponse;
static const NSModalResponse NSModalResponseOK = 1;

@interface NSSavePanel : NSWindow
@property(null_resettable, copy) NSString* message;
@property BOOL canCreateDirectories;
@property(nullable, copy) NSURL* directoryURL;
@property(nullable, readonly, copy) NSURL* URL;
- (NSModalResponse)runModal;
@end

@interface NSOpenPanel : NSSavePanel
+ (NSOpenPanel*)openPanel;
@property BOOL canChooseDirectories;
@property BOOL canChooseFiles;
@property BOOL allowsMultipleSelection;
@end

#pragma clang assume_nonnull end

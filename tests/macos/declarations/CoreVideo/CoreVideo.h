#pragma once

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

typedef std::int32_t CVReturn;
enum : CVReturn { kCVReturnSuccess = 0, kCVReturnError = -6660 };

typedef std::uint64_t CVOptionFlags;
typedef struct CF_BRIDGED_TYPE(id) __CVDisplayLink* CVDisplayLinkRef;

// The other members are of no concern to us; nobody here makes a time stamp.
typedef struct {
    std::uint32_t version;
    std::int32_t videoTimeScale;
    std::int64_t videoTime;
    std::uint64_t hostTime;
} CVTimeStamp;

typedef CVReturn (*CVDisplayLinkOutputCallback)(CVDisplayLinkRef displayLink,
                                                const CVTimeStamp* inNow,
                                                const CVTimeStamp* inOutputTime,
                                                CVOptionFlags flagsIn, CVOptionFlags* flagsOut,
                                                void* displayLinkContext);

CVReturn CVDisplayLinkCreateWithActiveCGDisplays(CVDisplayLinkRef* displayLinkOut);
CVReturn CVDisplayLinkSetOutputCallback(CVDisplayLinkRef displayLink,
                                        CVDisplayLinkOutputCallback callback, void* userInfo);
CVReturn CVDisplayLinkStart(CVDisplayLinkRef displayLink);
CVReturn CVDisplayLinkStop(CVDisplayLinkRef displayLink);
double CVGetHostClockFrequency(void);

} // extern "C"

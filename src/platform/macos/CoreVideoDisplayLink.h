#pragma once

#include "platform/DisplayLink.h"
#include "platform/macos/CfHolder.h"

#include <CoreVideo/CoreVideo.h>

#include <mutex>

namespace tessaline {

/// A display link of Core Video. Host time is that of the frame's output.
class CoreVideoDisplayLink final : public DisplayLink {
public:
    CoreVideoDisplayLink(CfHolder<CVDisplayLinkRef> nativeLink, Callback action);
    ~CoreVideoDisplayLink() override;
    CoreVideoDisplayLink(const CoreVideoDisplayLink&) = delete;
    CoreVideoDisplayLink& operator=(const CoreVideoDisplayLink&) = delete;

    void start() override;
    void stop() override;
    double clockFrequency() const override;

private:
    static CVReturn output(CVDisplayLinkRef link, const CVTimeStamp* now,
                           const CVTimeStamp* outputTime, CVOptionFlags flagsIn,
                           CVOptionFlags* flagsOut, void* context);
    void callBack(std::uint64_t hostTime);

    const Callback callback;
    const CfHolder<CVDisplayLinkRef> link;

    // Held during a callback, so that stopping waits for it.
    std::mutex lock;
    bool started = false;
    std::uint64_t latest = 0;
};

} // namespace tessaline

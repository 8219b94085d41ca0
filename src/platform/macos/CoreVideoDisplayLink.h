#pragma once

#include "platform/DisplayLink.h"
#include "platform/macos/CfHolder.h"

#include <CoreVideo/CoreVideo.h>

#include <memory>

namespace tessaline {

/// A display link of Core Video. Host time is that of the frame's output.
class CoreVideoDisplayLink final : public DisplayLink {
public:
    /// Null where Core Video does not call back.
    static std::unique_ptr<DisplayLink> create(CfHolder<CVDisplayLinkRef> nativeLink,
                                               Callback action);
    ~CoreVideoDisplayLink() override;
    CoreVideoDisplayLink(const CoreVideoDisplayLink&) = delete;
    CoreVideoDisplayLink& operator=(const CoreVideoDisplayLink&) = delete;

    bool start() override;
    void stop() override;
    double clockFrequency() const override;

private:
    class Receiver;

    CoreVideoDisplayLink(CfHolder<CVDisplayLinkRef> nativeLink, std::shared_ptr<Receiver> frames);
    static CVReturn output(CVDisplayLinkRef link, const CVTimeStamp* now,
                           const CVTimeStamp* outputTime, CVOptionFlags flagsIn,
                           CVOptionFlags* flagsOut, void* context);

    const CfHolder<CVDisplayLinkRef> link;
    const std::shared_ptr<Receiver> receiver;
};

} // namespace tessaline

#pragma once

#include "platform/DisplayLink.h"

#include <memory>

namespace tessaline {

class SurfaceFrames;

/// Makes display links that go by the frames of the prompter's surface as they are shown. They call
/// back on the main thread.
class FrameDisplayLinkMaker final : public DisplayLinkMaker {
public:
    /// Shared with the links, which may outlive their maker.
    explicit FrameDisplayLinkMaker(std::shared_ptr<SurfaceFrames> frames);

    std::unique_ptr<DisplayLink> make(DisplayLink::Callback callback) override;
    void setRefreshRate(double hertz) override;

private:
    std::shared_ptr<SurfaceFrames> frames;
};

} // namespace tessaline

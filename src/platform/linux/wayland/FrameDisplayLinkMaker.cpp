#include "platform/linux/wayland/FrameDisplayLinkMaker.h"

#include "platform/linux/wayland/SurfaceFrames.h"

#include <utility>

namespace tessaline {

namespace {

class FrameDisplayLink final : public DisplayLink {
public:
    FrameDisplayLink(std::shared_ptr<SurfaceFrames> surfaceFrames, Callback action)
        : frames(std::move(surfaceFrames)), callback(std::move(action)) {}
    ~FrameDisplayLink() override { end(); }
    FrameDisplayLink(const FrameDisplayLink&) = delete;
    FrameDisplayLink& operator=(const FrameDisplayLink&) = delete;

    bool start() override {
        if (!std::exchange(isStarted, true)) frames->add(this, callback);
        return true;
    }
    void stop() override { end(); }
    double clockFrequency() const override { return 1e9; }

private:
    void end() {
        if (std::exchange(isStarted, false)) frames->remove(this);
    }

    std::shared_ptr<SurfaceFrames> frames;
    Callback callback;
    bool isStarted = false;
};

} // namespace

FrameDisplayLinkMaker::FrameDisplayLinkMaker(std::shared_ptr<SurfaceFrames> surfaceFrames)
    : frames(std::move(surfaceFrames)) {}

std::unique_ptr<DisplayLink> FrameDisplayLinkMaker::make(DisplayLink::Callback callback) {
    return std::make_unique<FrameDisplayLink>(frames, std::move(callback));
}

void FrameDisplayLinkMaker::setRefreshRate(double hertz) {
    frames->setRefreshRate(hertz);
}

} // namespace tessaline

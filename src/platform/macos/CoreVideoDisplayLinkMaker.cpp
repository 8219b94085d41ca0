#include "platform/macos/CoreVideoDisplayLink.h"
#include "platform/macos/MacAdapters.h"

#include <utility>

namespace tessaline {

namespace {

class CoreVideoDisplayLinkMaker final : public DisplayLinkMaker {
public:
    std::unique_ptr<DisplayLink> make(DisplayLink::Callback callback) override {
        CVDisplayLinkRef created = nullptr;
        const CVReturn status = CVDisplayLinkCreateWithActiveCGDisplays(&created);
        CfHolder<CVDisplayLinkRef> link(created);
        if (status != kCVReturnSuccess || !link) return nullptr;
        return CoreVideoDisplayLink::create(std::move(link), std::move(callback));
    }

    void setRefreshRate(double /*hertz*/) override {}
};

} // namespace

std::unique_ptr<DisplayLinkMaker> makeDisplayLinkMaker() {
    return std::make_unique<CoreVideoDisplayLinkMaker>();
}

} // namespace tessaline

#include "platform/macos/CoreVideoDisplayLink.h"

#include <algorithm>
#include <utility>

namespace tessaline {

CoreVideoDisplayLink::CoreVideoDisplayLink(CfHolder<CVDisplayLinkRef> nativeLink, Callback action)
    : callback(std::move(action)), link(std::move(nativeLink)) {
    CVDisplayLinkSetOutputCallback(link.get(), &CoreVideoDisplayLink::output, this);
}

CoreVideoDisplayLink::~CoreVideoDisplayLink() {
    stop();
}

void CoreVideoDisplayLink::start() {
    {
        const std::scoped_lock guard(lock);
        if (std::exchange(started, true)) return;
    }
    CVDisplayLinkStart(link.get());
}

void CoreVideoDisplayLink::stop() {
    // Core Video does not say whether its own stop waits. The lock is released before that call,
    // since it may wait for a callback that wants the lock.
    {
        const std::scoped_lock guard(lock);
        if (!std::exchange(started, false)) return;
    }
    CVDisplayLinkStop(link.get());
}

double CoreVideoDisplayLink::clockFrequency() const {
    return CVGetHostClockFrequency();
}

CVReturn CoreVideoDisplayLink::output(CVDisplayLinkRef /*link*/, const CVTimeStamp* /*now*/,
                                      const CVTimeStamp* outputTime, CVOptionFlags /*flagsIn*/,
                                      CVOptionFlags* /*flagsOut*/, void* context) {
    if (!context) return kCVReturnError;
    static_cast<CoreVideoDisplayLink*>(context)->callBack(outputTime->hostTime);
    return kCVReturnSuccess;
}

void CoreVideoDisplayLink::callBack(std::uint64_t hostTime) {
    const std::scoped_lock guard(lock);
    if (!started) return;
    // A link that changes displays may name an earlier time than before.
    latest = std::max(latest, hostTime);
    callback(latest);
}

} // namespace tessaline

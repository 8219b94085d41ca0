#include "platform/macos/CoreVideoDisplayLink.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <mutex>
#include <utility>

namespace tessaline {

/// Gets the frames of a link. Core Video may still be calling when the link is stopped, and even
/// when it is gone: it is handed a number, by which a call finds the receiver if there is one.
class CoreVideoDisplayLink::Receiver {
public:
    /// Nothing at all once the receiver is gone.
    static std::shared_ptr<Receiver> find(const void* context) {
        const std::scoped_lock guard(registry().lock);
        const auto found = registry().receivers.find(reinterpret_cast<std::uintptr_t>(context));
        return found == registry().receivers.end() ? nullptr : found->second.lock();
    }

    static std::shared_ptr<Receiver> make(Callback action) {
        const auto receiver = std::make_shared<Receiver>(std::move(action));
        const std::scoped_lock guard(registry().lock);
        receiver->number = ++registry().lastNumber;
        registry().receivers.emplace(receiver->number, receiver);
        return receiver;
    }

    explicit Receiver(Callback action) : callback(std::move(action)) {}
    ~Receiver() {
        const std::scoped_lock guard(registry().lock);
        registry().receivers.erase(number);
    }
    Receiver(const Receiver&) = delete;
    Receiver& operator=(const Receiver&) = delete;

    // NOLINTNEXTLINE(performance-no-int-to-ptr): nobody follows it
    void* context() const { return reinterpret_cast<void*>(number); }

    /// Returns what it was before. Waits for a call in progress.
    bool listen(bool on) {
        const std::scoped_lock guard(lock);
        return std::exchange(listening, on);
    }

    void receive(std::uint64_t hostTime) {
        const std::scoped_lock guard(lock);
        if (!listening) return;
        // A link that changes displays may name an earlier time than before.
        latest = std::max(latest, hostTime);
        callback(latest);
    }

private:
    struct Registry {
        std::mutex lock;
        std::map<std::uintptr_t, std::weak_ptr<Receiver>> receivers;
        std::uintptr_t lastNumber = 0;
    };

    /// Never destroyed: a call may come while the program ends.
    static Registry& registry() {
        static auto& only = *new Registry;
        return only;
    }

    const Callback callback;
    std::uintptr_t number = 0;

    // Held during a callback, so that stopping waits for it.
    std::mutex lock;
    bool listening = false;
    std::uint64_t latest = 0;
};

std::unique_ptr<DisplayLink> CoreVideoDisplayLink::create(CfHolder<CVDisplayLinkRef> nativeLink,
                                                          Callback action) {
    auto frames = Receiver::make(std::move(action));
    const CVReturn status = CVDisplayLinkSetOutputCallback(
        nativeLink.get(), &CoreVideoDisplayLink::output, frames->context());
    if (status != kCVReturnSuccess) return nullptr;
    return std::unique_ptr<DisplayLink>(
        new CoreVideoDisplayLink(std::move(nativeLink), std::move(frames)));
}

CoreVideoDisplayLink::CoreVideoDisplayLink(CfHolder<CVDisplayLinkRef> nativeLink,
                                           std::shared_ptr<Receiver> frames)
    : link(std::move(nativeLink)), receiver(std::move(frames)) {}

CoreVideoDisplayLink::~CoreVideoDisplayLink() {
    stop();
}

bool CoreVideoDisplayLink::start() {
    if (receiver->listen(true)) return true;
    if (CVDisplayLinkStart(link.get()) == kCVReturnSuccess) return true;
    receiver->listen(false);
    return false;
}

void CoreVideoDisplayLink::stop() {
    // Core Video does not say whether its own stop waits. It is called without the receiver's lock,
    // since it may wait for a call that wants the lock.
    if (receiver->listen(false)) CVDisplayLinkStop(link.get());
}

double CoreVideoDisplayLink::clockFrequency() const {
    return CVGetHostClockFrequency();
}

CVReturn CoreVideoDisplayLink::output(CVDisplayLinkRef /*link*/, const CVTimeStamp* /*now*/,
                                      const CVTimeStamp* outputTime, CVOptionFlags /*flagsIn*/,
                                      CVOptionFlags* /*flagsOut*/, void* context) {
    const auto receiver = Receiver::find(context);
    if (!receiver) return kCVReturnError;
    receiver->receive(outputTime->hostTime);
    return kCVReturnSuccess;
}

} // namespace tessaline

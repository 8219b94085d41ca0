#include "platform/NotificationCenter.h"

#include <utility>

namespace tessaline {

struct NotificationCenter::Observation::Entry {
    QString name;
    const void* sender;
    Handler handler;

    bool wants(const Notification& notification) const {
        return name == notification.name && (!sender || sender == notification.sender);
    }
};

NotificationCenter::Observation::Observation(std::shared_ptr<Entry> registered)
    : entry(std::move(registered)) {}

NotificationCenter::NotificationCenter() = default;
NotificationCenter::~NotificationCenter() = default;

NotificationCenter::Observation NotificationCenter::observe(const QString& name, Handler handler,
                                                            const void* sender) {
    std::erase_if(entries, [](const auto& entry) { return entry.expired(); });
    auto entry =
        std::make_shared<Observation::Entry>(Observation::Entry{name, sender, std::move(handler)});
    entries.push_back(entry);
    return Observation(std::move(entry));
}

void NotificationCenter::post(const Notification& notification) {
    const auto registered = entries;
    for (const auto& candidate : registered) {
        const auto entry = candidate.lock();
        if (entry && entry->wants(notification)) entry->handler(notification);
    }
}

} // namespace tessaline

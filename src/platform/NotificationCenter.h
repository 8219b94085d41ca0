#pragma once

#include <QString>

#include <any>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace tessaline {

/// What a notification centre passes from a poster to its observers.
struct Notification {
    QString name;
    const void* sender = nullptr; ///< the object that posts, compared by address only
    std::map<QString, std::any> userInfo;

    /// The value under `key`, or null when there is none or it is of another type than `T`. Points
    /// into this notification.
    template <typename T>
    const T* value(const QString& key) const {
        const auto entry = userInfo.find(key);
        return entry == userInfo.end() ? nullptr : std::any_cast<T>(&entry->second);
    }
};

/// Tells observers that something happened, without poster and observers knowing each other.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification&)>;

    /// Keeps an observer registered for as long as it lives. It may outlive the centre.
    class Observation {
    public:
        Observation() = default;

    private:
        friend class NotificationCenter;
        struct Entry;
        explicit Observation(std::shared_ptr<Entry> registered);

        std::shared_ptr<Entry> entry;
    };

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;

    /// Calls `handler` with every later notification of this name, from this sender only unless
    /// `sender` is null.
    [[nodiscard]] Observation observe(const QString& name, Handler handler,
                                      const void* sender = nullptr);

    /// Calls the observers in the order in which they registered and returns after the last one.
    /// Handlers may register and drop observers: a new one hears the next notification, a dropped
    /// one is not called any more.
    void post(const Notification& notification);

private:
    std::vector<std::weak_ptr<Observation::Entry>> entries;
};

} // namespace tessaline

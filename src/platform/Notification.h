#pragma once

#include <QString>

#include <any>
#include <map>

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

} // namespace tessaline

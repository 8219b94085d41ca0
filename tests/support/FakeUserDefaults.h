#pragma once

#include "platform/UserDefaults.h"

#include <map>
#include <mutex>

namespace tessaline {

/// Keeps the texts in memory.
class FakeUserDefaults final : public UserDefaults {
public:
    std::optional<QString> string(const QString& key) const override {
        const std::scoped_lock guard(lock);
        const auto entry = values.find(key);
        return entry == values.end() ? std::nullopt : std::optional(entry->second);
    }

    void setString(const QString& key, const QString& value) override {
        const std::scoped_lock guard(lock);
        values[key] = value;
    }

    std::map<QString, QString> values;

private:
    mutable std::mutex lock;
};

} // namespace tessaline

#pragma once

#include <QString>

#include <optional>

namespace tessaline {

/// Small texts that the system keeps for the user from run to run. Any thread.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    virtual std::optional<QString> string(const QString& key) const = 0;
    virtual void setString(const QString& key, const QString& value) = 0;
};

} // namespace tessaline

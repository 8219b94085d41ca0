#pragma once

#include "platform/UserDefaults.h"

#include <QSettings>

#include <functional>
#include <memory>
#include <mutex>

namespace tessaline {

/// The user's defaults in a file below ~/.config. A text is in its file when `setString` returns;
/// one that cannot be written is not kept.
class QtUserDefaults final : public UserDefaults {
public:
    QtUserDefaults();

    /// In this file instead.
    explicit QtUserDefaults(const QString& path);

    std::optional<QString> string(const QString& key) const override;
    void setString(const QString& key, const QString& value) override;

private:
    std::function<std::unique_ptr<QSettings>()> open;
    mutable std::mutex lock;
};

} // namespace tessaline

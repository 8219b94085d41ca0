#pragma once

#include "platform/StatusArea.h"

#include <functional>

namespace tessaline {

/// Where desktops show status items: those announced over D-Bus, and what the display server has.
class DesktopStatusArea final : public StatusArea {
public:
    /// `hasTray` answers whether the display server has a place for items as well.
    explicit DesktopStatusArea(std::function<bool()> hasTray);

    bool isThere() const override;
    bool opensMenus() const override { return false; }
    QImage symbol(const QString& name, const QString& description) const override;

private:
    const std::function<bool()> hasTray;
};

} // namespace tessaline

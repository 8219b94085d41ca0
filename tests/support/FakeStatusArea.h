#pragma once

#include "platform/StatusArea.h"

namespace tessaline {

/// A place for status items that comes and goes as the test says.
class FakeStatusArea final : public StatusArea {
public:
    bool isThere() const override { return there; }
    bool opensMenus() const override { return false; }
    QImage symbol(const QString& name, const QString& description) const override {
        asked << name << description;
        return drawing;
    }

    bool there = true;
    QImage drawing; ///< of every name
    mutable QStringList asked;
};

} // namespace tessaline

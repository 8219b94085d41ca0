#pragma once

#include "platform/Pasteboard.h"

namespace tessaline {

/// The clipboard as Qt reads it: for systems where that asks no other program. Needs a
/// QGuiApplication.
class QtPasteboard final : public Pasteboard {
public:
    void refresh(std::function<void(const QString& problem)> done) override;
    std::optional<QString> plainText() const override { return text; }

private:
    std::optional<QString> text;
};

} // namespace tessaline

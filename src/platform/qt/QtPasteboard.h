#pragma once

#include "platform/Pasteboard.h"

namespace tessaline {

/// The clipboard of the display that Qt is connected to. Needs a QGuiApplication.
class QtPasteboard final : public Pasteboard {
public:
    std::optional<QString> plainText() const override;
};

} // namespace tessaline

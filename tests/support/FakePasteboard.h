#pragma once

#include "platform/Pasteboard.h"

namespace tessaline {

/// Clipboard that holds what the test puts into it.
class FakePasteboard final : public Pasteboard {
public:
    std::optional<QString> plainText() const override { return text; }

    std::optional<QString> text;
};

} // namespace tessaline

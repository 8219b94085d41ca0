#pragma once

#include "platform/Screens.h"

#include <optional>
#include <vector>

namespace tessaline {

/// Displays that a test plugs in and out by changing the fields.
class FakeScreens final : public Screens {
public:
    std::vector<Screen> all() const override { return attached; }
    std::optional<Screen> mainScreen() const override { return main; }

    std::vector<Screen> attached;
    std::optional<Screen> main;
};

} // namespace tessaline

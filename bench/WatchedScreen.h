#pragma once

#include <cstdint>

struct xcb_connection_t;

namespace tessaline {

/// Looks at the X screen from outside of the program that draws on it.
class WatchedScreen {
public:
    WatchedScreen();
    ~WatchedScreen();
    WatchedScreen(const WatchedScreen&) = delete;
    WatchedScreen& operator=(const WatchedScreen&) = delete;

    /// Whether amber text is to be seen at the top centre of the screen.
    bool showsText() const;

    /// How often something was drawn since the last call.
    int takeDamage();

private:
    xcb_connection_t* connection;
    std::uint32_t root;
    int width;
    std::uint32_t damage;
    std::uint8_t damageEvent;
};

} // namespace tessaline

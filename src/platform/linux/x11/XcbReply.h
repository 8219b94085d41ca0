#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace tessaline {

struct FreeXcbReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply or error of the X server, which the receiver has to free.
template <typename T>
using XcbReply = std::unique_ptr<T, FreeXcbReply>;

/// What kind of event it is, whether the server or another client sent it. Takes events of any
/// kind.
inline std::uint8_t eventType(const void* event) {
    constexpr unsigned sentByClient = 0x80;
    return std::uint8_t(static_cast<const xcb_generic_event_t*>(event)->response_type &
                        ~sentByClient);
}

} // namespace tessaline

#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace tessaline {

struct FreeXcbReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply or error of the X server, which the receiver has to free.
template <typename T>
using XcbReply = std::unique_ptr<T, FreeXcbReply>;

} // namespace tessaline

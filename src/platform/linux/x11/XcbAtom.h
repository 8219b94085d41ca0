#pragma once

#include <cstdint>
#include <string_view>

struct xcb_connection_t;

namespace tessaline {

/// The X server's number for a name; 0 when the server does not answer. Costs a round trip.
std::uint32_t xcbAtom(xcb_connection_t* connection, std::string_view name);

} // namespace tessaline

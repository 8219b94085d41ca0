#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <span>
#include <vector>

namespace tessaline {

/// The numbers of a property that lists 32-bit ones of this type; empty when the window has none.
std::vector<std::uint32_t> numbersIn(xcb_connection_t* connection,
                                     xcb_get_property_cookie_t requested);

/// The windows that a property of a window lists. One round trip.
std::vector<xcb_window_t> windowsListedIn(xcb_connection_t* connection, xcb_window_t window,
                                          xcb_atom_t property);

/// The children of each of these windows, lowest first. One round trip for all.
std::vector<std::vector<xcb_window_t>> childrenOf(xcb_connection_t* connection,
                                                  std::span<const xcb_window_t> parents);

} // namespace tessaline

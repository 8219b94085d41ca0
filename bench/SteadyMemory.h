#pragma once

namespace tessaline {

/// Has blocks of every large size come fresh from the system. Otherwise an allocator may keep the
/// smaller of two sizes at hand and not the larger, and what looks like a scanner that does not
/// scale is the page faults of the larger one. Call it before anything large is allocated.
void makeMemorySteady();

} // namespace tessaline

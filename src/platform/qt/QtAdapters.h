#pragma once

namespace tessaline {

struct Platform;

/// Puts those adapters into the platform that are the same on every system.
void addQtAdapters(Platform& platform);

} // namespace tessaline

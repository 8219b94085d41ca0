#pragma once

#include "platform/WindowTraits.h"

#include <memory>

namespace tessaline {

/// The traits of the window system that the QGuiApplication runs on: X11, or those of a system
/// without support.
std::unique_ptr<WindowTraits> makeWindowTraits();

} // namespace tessaline

#pragma once

#include "platform/qt/QtScreens.h"

namespace tessaline {

struct Platform;

/// Tells screens of XWayland apart, which numbers them anew at each plug, by what the compositor
/// says of them; one that it does not know has no identity. Announces that the compositor has
/// others to the platform, which it borrows, as a change of the screens.
QtScreens::Identify identifyByCompositor(Platform& platform);

} // namespace tessaline

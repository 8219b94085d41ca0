#pragma once

#include "settings/PaceStep.h"

namespace tessaline {

class AppDelegate;

/// Lets the prompter's buttons and keys do what they say.
void connectControls(AppDelegate& delegate);

/// What a step changes while the pace goes by the speed.
inline constexpr double speedStep = 0.25;

/// Makes whatever the pace goes by a step faster or slower.
void stepPace(AppDelegate& delegate, PaceStep step);

} // namespace tessaline

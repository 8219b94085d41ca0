#pragma once

#include "settings/PaceStep.h"

namespace tessaline {

class AppDelegate;
struct PrompterKey;

/// Does what a key of the prompter's asks for.
void carryOut(const PrompterKey& key, AppDelegate& delegate);

/// What a step changes while the pace goes by the speed.
inline constexpr double speedStep = 0.25;

/// Makes whatever the pace goes by a step faster or slower.
void stepPace(AppDelegate& delegate, PaceStep step);

} // namespace tessaline

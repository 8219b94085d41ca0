#pragma once

#include "ui/Alert.h"

namespace tessaline {

/// The picture that an alert of this style shows when it has none of its own.
QIcon alertIcon(AlertContent::Style style);

} // namespace tessaline

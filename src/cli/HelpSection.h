#pragma once

#include "cli/HelpEntry.h"

#include <span>

namespace tessaline {

/// A list behind the options of a help.
struct HelpSection {
    QStringView heading;
    std::span<const HelpEntry> entries;
};

} // namespace tessaline

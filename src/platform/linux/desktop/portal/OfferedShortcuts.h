#pragma once

#include "platform/GlobalKeyMonitor.h"
#include "platform/linux/desktop/portal/ShortcutsPortal.h"

#include <optional>

namespace tessaline {

/// What keys can be given to in the desktop's settings, under names that desktops remember.
namespace OfferedShortcuts {

/// The name of starting and stopping the text.
QString toggle();

/// All of them; only the toggle comes with a key that we would like.
std::vector<ShortcutsPortal::Shortcut> all();

/// What a name other than the toggle's stands for.
std::optional<GlobalKeyMonitor::Action> action(const QString& id);

} // namespace OfferedShortcuts
} // namespace tessaline

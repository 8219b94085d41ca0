#pragma once

#include "platform/GlobalKeyMonitor.h"

namespace tessaline {

class AppDelegate;
class RemoteCommands;

/// Carries out what the user gave keys to in the desktop's settings, as remote control would, for
/// as long as it lives.
class ActionKeys {
public:
    /// Borrows everything.
    ActionKeys(AppDelegate& delegate, RemoteCommands& commands, GlobalKeyMonitor& monitor);
    ~ActionKeys();
    ActionKeys(const ActionKeys&) = delete;
    ActionKeys& operator=(const ActionKeys&) = delete;

private:
    void carryOut(GlobalKeyMonitor::Action action);

    AppDelegate& delegate;
    RemoteCommands& commands;
    GlobalKeyMonitor& monitor;
};

} // namespace tessaline

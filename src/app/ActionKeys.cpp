#include "app/ActionKeys.h"

#include "app/AppDelegate.h"
#include "app/RemoteCommands.h"

namespace tessaline {

namespace {

using Action = GlobalKeyMonitor::Action;

ControlCommand commandFor(Action action, const AppDelegate& delegate) {
    switch (action) {
    case Action::faster:
        return ControlCommand::faster;
    case Action::slower:
        return ControlCommand::slower;
    case Action::nextHeading:
        return ControlCommand::nextHeading;
    case Action::previousHeading:
        return ControlCommand::previousHeading;
    case Action::showOrHide:
        break;
    }
    const bool hides = delegate.hasStarted() && delegate.status().visible;
    return hides ? ControlCommand::hide : ControlCommand::show;
}

} // namespace

ActionKeys::ActionKeys(AppDelegate& appDelegate, RemoteCommands& remoteCommands,
                       GlobalKeyMonitor& keyMonitor)
    : delegate(appDelegate), commands(remoteCommands), monitor(keyMonitor) {
    monitor.onAction([this](Action action) { carryOut(action); });
}

ActionKeys::~ActionKeys() {
    monitor.onAction(nullptr);
}

void ActionKeys::carryOut(Action action) {
    // Nobody waits for the answer.
    commands.carryOut(ControlRequest{.command = commandFor(action, delegate), .argument = {}},
                      [](const RemoteAnswer&) {});
}

} // namespace tessaline

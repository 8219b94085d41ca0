#include "remote/page/PageCommands.h"

namespace tessaline {

namespace {

bool isForPages(ControlCommand command) {
    switch (command) {
    case ControlCommand::toggle:
    case ControlCommand::play:
    case ControlCommand::pause:
    case ControlCommand::faster:
    case ControlCommand::slower:
    case ControlCommand::up:
    case ControlCommand::down:
    case ControlCommand::scroll:
    case ControlCommand::top:
    case ControlCommand::nextHeading:
    case ControlCommand::previousHeading:
    case ControlCommand::heading:
    case ControlCommand::paragraph:
    case ControlCommand::show:
    case ControlCommand::hide:
    case ControlCommand::black:
        return true;
    default:
        return false;
    }
}

} // namespace

std::optional<ControlRequest> pageCommand(const QString& message) {
    auto request = ControlRequest::parse(message.split(u' '), nullptr);
    if (request && !isForPages(request->command)) request.reset();
    return request;
}

} // namespace tessaline

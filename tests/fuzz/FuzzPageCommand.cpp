#include "FuzzFailure.h"

#include "remote/page/PageCommands.h"

#include <QString>

using namespace tessaline;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString message =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto request = pageCommand(message);
    if (!request) return 0;
    if (request->command == ControlCommand::quit || request->command == ControlCommand::open ||
        request->command == ControlCommand::remote)
        reportFuzzFailure("a command that is not for pages", message);
    if (pageCommand(request->words().join(u' ')) != request)
        reportFuzzFailure("another command from its own words", message);
    return 0;
}

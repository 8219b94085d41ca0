#include "app/ControlCall.h"
#include "app/ShowCommand.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/RenderCommand.h"
#include "settings/FilePath.h"

#include <QStringList>

namespace tessaline {

namespace {

QStringList argumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += pathText(argv[i]);
    return arguments;
}

/// Carries a request out; one overload for each kind.
struct Dispatch {
    int argc;
    char** argv;

    int operator()(const CommandLine::Print& request) const { return printText(request.text); }

    int operator()(const CommandLine::Mistake& request) const {
        reportError(request.message);
        return ExitStatus::usage;
    }

    int operator()(const RenderRequest& request) const { return runRender(request); }

    int operator()(const ControlRequest& request) const { return runControl(request); }

    int operator()(const CommandLine::Show& request) const { return runShow(argc, argv, request); }
};

} // namespace

} // namespace tessaline

int main(int argc, char** argv) {
    using namespace tessaline;
    return std::visit(Dispatch{argc, argv}, CommandLine::parse(argumentsOf(argc, argv)));
}

#include "app/ShowCommand.h"

#include "app/PrompterApplication.h"
#include "app/remote/HandedScript.h"
#include "app/remote/SingleInstance.h"
#include "app/remote/TemporaryFolder.h"
#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/TextInput.h"
#include "settings/FilePath.h"

#include <chrono>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds longestWait{10};

int reportAnswer(const RemoteAnswer& answer) {
    const auto* refusal = std::get_if<Refusal>(&answer);
    return refusal ? reportFailure(refusal->reason) : ExitStatus::success;
}

/// Reads what the arguments name, if anything. Returns what is wrong with it.
QString readScript(const CommandLine::Show& request, PrompterStart& start) {
    if (!request.input) return {};
    QString problem;
    start.text = readTextInput(*request.input, &problem);
    if (!start.text || !request.follow) return problem;
    if (!HandedScript::isSameForAll(*request.input))
        return u"cannot follow %1: Not a lasting file"_s.arg(*request.input);
    start.followed = absolutePath(*request.input);
    return {};
}

HandedScript handOver(const QString& input, const QString& text, const QString& folder) {
    const bool isNamed = input != "-"_L1 && HandedScript::isSameForAll(input);
    return isNamed ? HandedScript(absolutePath(input))
                   : HandedScript(text, {folder, temporaryFolder()});
}

int runUnheard(const PrompterStart& start, const QString& problem) {
    reportError(u"later starts will not find this one: "_s + problem);
    return runPrompter(start);
}

} // namespace

int runShow(int argc, char** argv, const CommandLine::Show& request) {
    PrompterStart start{.argc = argc, .argv = argv, .text = {}, .followed = {}, .socketPath = {}};
    QString problem = readScript(request, start);
    if (!problem.isEmpty()) {
        reportError(problem);
        return ExitStatus::usage;
    }
    const auto address = InstanceAddress::ofThisSession(&problem);
    if (!address) return runUnheard(start, problem);

    std::optional<HandedScript> script; // until it has been read
    const auto composeRequest = [&]() -> std::optional<RemoteRequest> {
        if (!start.text) return ShowRequest{};
        script.emplace(handOver(*request.input, *start.text, address->folder));
        if (script->path().isEmpty()) return std::nullopt;
        return OpenRequest{script->path(), request.follow};
    };
    const auto outcome =
        SingleInstance::join(*address, composeRequest, InstanceClient::Clock::now() + longestWait);
    if (const auto* answer = std::get_if<RemoteAnswer>(&outcome)) return reportAnswer(*answer);
    if (const auto* failure = std::get_if<SingleInstance::NoLock>(&outcome))
        return runUnheard(start, failure->problem);
    if (std::holds_alternative<SingleInstance::NothingToAsk>(outcome))
        return reportFailure(script->problem());
    if (std::holds_alternative<SingleInstance::Silence>(outcome))
        return reportFailure(u"the Tessaline that runs on this display does not answer"_s);
    start.socketPath = address->socketPath();
    return runPrompter(start);
}

} // namespace tessaline

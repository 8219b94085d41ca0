#include "app/ShowCommand.h"

#include "app/PrompterApplication.h"
#include "app/remote/HandedScript.h"
#include "app/remote/SingleInstance.h"
#include "app/remote/TemporaryFolder.h"
#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/TextInput.h"
#include "settings/FilePath.h"
#include "settings/WholeFile.h"
#include "sources/files/ScriptFile.h"

#include <chrono>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds longestAnswer{10};
constexpr std::chrono::seconds longestConversion{30};

int reportAnswer(const RemoteAnswer& answer) {
    const auto* refusal = std::get_if<Refusal>(&answer);
    return refusal ? reportFailure(refusal->reason) : ExitStatus::success;
}

/// Reads a file that the running program finds under the same name. A document is left for that to
/// read, once.
QString readLastingFile(PrompterStart& start) {
    if (isDocumentFile(start.path)) return {};
    const ReadText read = readTextScript(start.path, defaultFileLimit);
    start.text = read.text;
    return read.text ? QString() : u"cannot read %1: %2"_s.arg(start.path, read.problem);
}

/// Reads what the arguments name, if anything. Returns what is wrong with it.
QString readScript(const CommandLine::Show& request, PrompterStart& start) {
    if (!request.input) return {};
    const QString& input = *request.input;
    const bool lasts = input != "-"_L1 && HandedScript::isSameForAll(input);
    if (lasts) start.path = absolutePath(input);
    start.follow = request.follow;
    if (lasts && !request.follow) return readLastingFile(start);
    QString problem;
    start.text = readTextInput(input, &problem);
    if (start.text && request.follow && !lasts)
        return u"cannot follow %1: Not a lasting file"_s.arg(input);
    return problem;
}

int runUnheard(const PrompterStart& start, const QString& problem) {
    reportError(u"later starts will not find this one: "_s + problem);
    return runPrompter(start);
}

} // namespace

int runShow(int argc, char** argv, const CommandLine::Show& request) {
    PrompterStart start{.argc = argc, .argv = argv, .text = {}, .path = {}, .socketPath = {}};
    QString problem = readScript(request, start);
    if (!problem.isEmpty()) {
        reportError(problem);
        return ExitStatus::usage;
    }
    const auto address = InstanceAddress::ofThisSession(&problem);
    if (!address) return runUnheard(start, problem);

    std::optional<HandedScript> script; // until it has been read
    const auto composeRequest = [&]() -> std::optional<RemoteRequest> {
        if (!start.path.isEmpty()) return OpenRequest{start.path, start.follow};
        if (!start.text) return ShowRequest{};
        script.emplace(*start.text, QStringList{address->folder, temporaryFolder()});
        if (script->path().isEmpty()) return std::nullopt;
        return OpenRequest{script->path(), false, true};
    };
    const bool waitsForConversion = !start.path.isEmpty() && !start.text;
    const auto patience = waitsForConversion ? longestConversion : longestAnswer;
    const auto outcome =
        SingleInstance::join(*address, composeRequest, InstanceClient::Clock::now() + patience);
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

#include "app/ControlCall.h"

#include "app/remote/SingleInstance.h"
#include "cli/Console.h"
#include "cli/ControlAnswer.h"
#include "platform/DisplaySession.h"

#include <chrono>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds longestWait{5};

QString nobodyRuns() {
    const QString finding = u"no prompter is running"_s;
    const auto missing = missingSession();
    if (!missing) return finding;
    return finding +
           u" that can be found: ctl needs the environment of the desktop's session, and "_s +
           *missing;
}

} // namespace

int runControl(const ControlRequest& request) {
    QString problem;
    const auto address = InstanceAddress::ofThisSession(&problem);
    if (!address) return reportFailure(u"no prompter can be reached: "_s + problem);
    const auto outcome = SingleInstance::join(
        *address, [&] { return request; }, InstanceClient::Clock::now() + longestWait);
    if (std::holds_alternative<SingleInstance::IsUs>(outcome)) return reportFailure(nobodyRuns());
    if (const auto* failure = std::get_if<SingleInstance::NoLock>(&outcome))
        return reportFailure(u"no prompter can be reached: "_s + failure->problem);
    const auto* answer = std::get_if<RemoteAnswer>(&outcome);
    if (!answer) return reportFailure(u"the prompter does not answer"_s);
    if (const auto* refusal = std::get_if<Refusal>(answer)) return reportFailure(refusal->reason);
    return printText(controlAnswer(request, std::get<PrompterStatus>(*answer)) + u'\n');
}

} // namespace tessaline

#include "app/ShowCommand.h"

#include "app/PrompterApplication.h"
#include "app/RemoteCommands.h"
#include "app/cli/Console.h"
#include "app/cli/ExitStatus.h"
#include "app/cli/TextInput.h"
#include "app/remote/SingleInstance.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <chrono>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds longestWait{10};

/// A script that the running program can read by itself.
class HandedOver {
public:
    /// A file goes by its path. What came through a pipe is put into a private file in the folder,
    /// which goes away with this object.
    HandedOver(const QString& input, const QString& text, const QString& folder)
        : spool(folder + u"/script-XXXXXX.md"_s) {
        const QFileInfo file(input);
        if (input != u"-" && file.isFile()) {
            path = file.absoluteFilePath();
        } else if (spool.open() && spool.write(text.toUtf8()) >= 0 && spool.flush()) {
            path = spool.fileName();
        } else {
            reportError(u"cannot write %1: %2"_s.arg(spool.fileTemplate(), spool.errorString()));
        }
    }

    QString path; ///< empty: it cannot, which has been reported

private:
    QTemporaryFile spool;
};

int reportAnswer(const QJsonObject& answer) {
    if (answer.value("ok"_L1).toBool()) return ExitStatus::success;
    reportError(answer.value("error"_L1).toString());
    return ExitStatus::failure;
}

} // namespace

int runShow(int argc, char** argv, const CommandLine::Show& request) {
    PrompterStart start{.argc = argc, .argv = argv, .text = {}, .followed = {}, .socketPath = {}};
    QString problem;
    if (request.input) {
        start.text = readTextInput(*request.input, &problem);
        if (!start.text) {
            reportError(problem);
            return ExitStatus::usage;
        }
        if (request.follow) start.followed = QFileInfo(*request.input).absoluteFilePath();
    }
    const auto address = InstanceAddress::ofThisSession(&problem);
    if (!address) {
        reportError(u"later starts will not find this one: "_s + problem);
        return runPrompter(start);
    }

    std::optional<HandedOver> script;
    const auto composeMessage = [&] {
        if (!start.text) return RemoteCommands::show();
        script.emplace(*request.input, *start.text, address->folder);
        return RemoteCommands::open(script->path, request.follow);
    };
    const auto outcome =
        SingleInstance::join(*address, composeMessage, InstanceClient::Clock::now() + longestWait);
    if (const auto* answer = std::get_if<QJsonObject>(&outcome)) return reportAnswer(*answer);
    if (std::holds_alternative<SingleInstance::Silence>(outcome)) {
        reportError(u"the Tessaline that runs on this display does not answer"_s);
        return ExitStatus::failure;
    }
    start.socketPath = address->socketPath();
    return runPrompter(start);
}

} // namespace tessaline

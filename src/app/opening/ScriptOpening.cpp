#include "app/opening/ScriptOpening.h"

#include "app/ScriptIntake.h"
#include "platform/ActivationPolicy.h"
#include "platform/FileChooser.h"
#include "platform/Platform.h"
#include "platform/RunThenPost.h"
#include "prompter/PrompterWindow.h"
#include "prompter/covers/NoticeBar.h"
#include "prompter/view/ScriptView.h"
#include "reading/PrompterStatus.h"
#include "settings/SupportFolder.h"
#include "settings/WholeFile.h"
#include "sources/files/DroppedContent.h"

#include <QLoggingCategory>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(openingLog, "app.tessaline.Tessaline.opening", QtInfoMsg)

QString firstOf(const QString& path, qsizetype count) {
    if (count < 2) return {};
    return u"Opened %1, the first of %2 files"_s.arg(briefFileName(path)).arg(count);
}

} // namespace

ScriptOpening::ScriptOpening(ScriptIntake& scriptIntake, PrompterWindow& prompterWindow,
                             const Platform& system, std::function<void()> bringToFront)
    : intake(scriptIntake)
    , prompter(prompterWindow)
    , platform(system)
    , reveal(std::move(bringToFront))
    , latestScripts(*platform.fileTasks)
    , placeMemory(latestScripts, intake, prompter, platform)
    , menu(*this, prompter.textView())
    , dropArea(prompter, [this](const DroppedContent& content) { take(content); }) {}

ScriptOpening::~ScriptOpening() = default;

void ScriptOpening::open(const QString& path, Done done) {
    open(path, {}, std::move(done));
}

void ScriptOpening::open(const QString& path, const QString& remark, Done done) {
    if (isDocumentName(path)) prompter.notices().tell(u"Opening %1 …"_s.arg(briefFileName(path)));
    const auto read = [path, &processes = *platform.processes] {
        return readScriptFile(path, processes);
    };
    const auto finish =
        lifetime.guard([this, path, remark, done = std::move(done)](const ReadText& found) {
            const QString problem = show(path, found, remark);
            if (problem.isEmpty() && !prompter.isVisible()) reveal();
            if (done) done(problem);
        });
    runThenPost(*platform.scriptTasks, *platform.mainQueue, read, finish);
}

ScriptOpening::Reading ScriptOpening::readingOf(const QString& path) const {
    return [path, &processes = *platform.processes] {
        return readScriptFile(path, processes, defaultFileLimit);
    };
}

QString ScriptOpening::show(const QString& path, const ReadText& read, const QString& remark) {
    QString problem = read.text ? QString() : read.problem;
    if (!problem.isEmpty()) {
        tellProblem(path, problem);
        return problem;
    }
    if (read.text->isEmpty()) {
        prompter.notices().tell(u"%1 is empty"_s.arg(briefFileName(path)));
        return {};
    }
    prompter.notices().tell(remark);
    placeMemory.expect(path, *read.text, remark);
    intake.open(*read.text);
    latestScripts.add(path);
    return {};
}

void ScriptOpening::follow(const QString& path, const QString& text) {
    placeMemory.expect(path, text, {});
    intake.follow(path, text);
    latestScripts.add(path);
}

void ScriptOpening::tellProblem(const QString& path, const QString& problem) {
    qCWarning(openingLog, "Cannot open %ls: %ls", qUtf16Printable(path), qUtf16Printable(problem));
    prompter.notices().tell(u"Cannot open %1: %2"_s.arg(briefFileName(path), problem));
}

void ScriptOpening::choose() {
    const QString folder = chosenFolder.isEmpty() ? homeFolderPath() : chosenFolder;
    platform.activationPolicy->activateIgnoringOtherApps();
    platform.fileChooser->chooseFile(
        {u"Open a Script"_s, u"Scripts"_s, scriptNamePatterns(), folder},
        lifetime.guard([this](const QString& path) {
            chosenFolder = path.section(u'/', 0, -2);
            open(path);
        }));
}

void ScriptOpening::take(const DroppedContent& content) {
    if (!content.paths.isEmpty()) {
        const QString& first = content.paths.first();
        open(first, firstOf(first, content.paths.size() + content.others), {});
    } else if (content.others > 0) {
        prompter.notices().tell(u"Only files on this computer can be opened"_s);
    } else if (content.text.isEmpty()) {
        prompter.notices().tell(u"The other program gave nothing to show"_s);
    } else {
        intake.open(content.text);
    }
}

void ScriptOpening::tell(PrompterStatus& status) const {
    status.file = placeMemory.file();
    status.continueAt = placeMemory.canContinue() ? placeMemory.offer() : QString();
    for (const LatestScript& script : latestScripts.all())
        status.latest += script.path;
}

void ScriptOpening::finish() {
    placeMemory.remember();
    latestScripts.finishSaving();
}

} // namespace tessaline

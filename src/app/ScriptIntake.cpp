#include "app/ScriptIntake.h"

#include "analytics/UsageRecorder.h"
#include "app/ShellLog.h"
#include "platform/Pasteboard.h"
#include "platform/Platform.h"
#include "settings/AppSettings.h"
#include "sources/FollowedFile.h"
#include "sources/SourceManager.h"

#include <utility>

namespace tessaline {

ScriptIntake::ScriptIntake(SourceManager& manager, const AppSettings& shared,
                           const Platform& system, UsageRecorder& usageRecorder)
    : sources(manager), settings(shared), platform(system), recorder(usageRecorder) {}

ScriptIntake::~ScriptIntake() = default;

void ScriptIntake::start() {
    isStarted = true;
    if (waiting) show(*std::exchange(waiting, std::nullopt));
}

void ScriptIntake::open(const QString& text) {
    if (text.isEmpty()) return;
    followedFile.reset();
    show(text);
}

void ScriptIntake::follow(const QString& path, const QString& text) {
    show(text);
    followedFile = std::make_unique<FollowedFile>(
        path, text, *platform.mainQueue, *platform.fileTasks, *platform.timers,
        lifetime.guard([this](const QString& changed) { show(changed); }));
}

void ScriptIntake::stopFollowing() {
    followedFile.reset();
}

QString ScriptIntake::followedPath() const {
    return followedFile ? followedFile->path() : QString();
}

void ScriptIntake::paste(std::function<void(const QString& problem)> done) {
    followedFile.reset();
    makeClipboardActive();
    platform.pasteboard->refresh(
        lifetime.guard([this, done = std::move(done)](const QString& problem) {
            sources.pasteFromClipboard();
            trackPaste();
            if (!problem.isEmpty())
                qCWarning(shellLog, "Nothing was pasted: %ls", qUtf16Printable(problem));
            done(problem);
        }));
}

void ScriptIntake::show(const QString& text) {
    if (text.isEmpty()) return;
    if (!isStarted) {
        waiting = text;
    } else {
        makeClipboardActive();
        sources.pasteText(text);
        trackPaste();
    }
}

void ScriptIntake::makeClipboardActive() {
    if (settings.activeSourceType() != SourceType::clipboard)
        sources.setActiveSource(SourceType::clipboard);
}

void ScriptIntake::trackPaste() {
    recorder.trackContentPasted(sources.currentWordCount());
}

} // namespace tessaline

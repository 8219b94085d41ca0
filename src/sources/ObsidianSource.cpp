#include "sources/ObsidianSource.h"

#include "platform/RunThenPost.h"
#include "platform/TimerMaker.h"
#include "settings/SupportFolder.h"
#include "sources/ContentFile.h"

#include <utility>
#include <variant>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

constexpr TimerMaker::Interval notePollInterval{1.0};

std::optional<QString> readContent(const QString& path) {
    auto result = readContentFile(path, ByteOrderMark::drop);
    if (auto* text = std::get_if<QString>(&result)) return std::move(*text);
    return std::nullopt;
}

} // namespace

QString ObsidianSource::placeholder() {
    return u"Waiting for content from Obsidian...\n\nUse 'Send to Tessaline' command in Obsidian."_s;
}

QString ObsidianSource::notchFilePath() {
    return supportFolderPath() + "/tessaline-content.md"_L1;
}

ObsidianSource::ObsidianSource(MainQueue& queue, TaskRunner& runner, TimerMaker& timers,
                               QString filePath)
    : mainQueue(queue)
    , taskRunner(runner)
    , timerMaker(timers)
    , path(std::move(filePath))
    , isWatching(std::make_shared<std::atomic<bool>>(false)) {}

ObsidianSource::~ObsidianSource() {
    stopWatching();
}

void ObsidianSource::startWatching(ContentCallback onChange) {
    stopWatching();
    watchCallback = std::move(onChange);
    *isWatching = true;
    lastContent.clear();
    loadInitially();
    fileTimer = timerMaker.every(notePollInterval, [this] { checkForUpdates(); });
}

void ObsidianSource::stopWatching() {
    fileTimer.reset();
    *isWatching = false;
    watchCallback = nullptr;
}

void ObsidianSource::loadInitially() {
    auto read = [isWatching = isWatching, path = path]() -> std::optional<QString> {
        if (!*isWatching) return std::nullopt;
        return readContent(path).value_or(placeholder());
    };
    // Whoever watches by the time the text is there gets it.
    readInBackground(std::move(read), [this](const QString& text) { callBack(text); });
}

void ObsidianSource::callBack(const QString& text) {
    if (!watchCallback) return;
    // The callback may stop the watching and so let go of itself.
    const auto callback = watchCallback;
    callback(text);
}

void ObsidianSource::checkForUpdates() {
    // With no read under way `lastContent` is up to date, and slow reads do not pile up.
    if (!watchCallback || readsInFlight > 0) return;
    auto read = [path = path, previous = lastContent] {
        return readChangedContentFile(path, previous);
    };
    readInBackground(std::move(read), watchCallback);
}

void ObsidianSource::readInBackground(Read read, ContentCallback deliver) {
    ++readsInFlight;
    auto finish = [this, deliver = std::move(deliver)](const std::optional<QString>& text) {
        --readsInFlight;
        if (!text) return;
        lastContent = *text;
        deliver(*text);
    };
    runThenPost(taskRunner, mainQueue, std::move(read), lifetime.guard(std::move(finish)));
}

} // namespace tessaline

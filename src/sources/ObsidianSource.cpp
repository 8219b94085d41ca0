#include "sources/ObsidianSource.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "platform/TimerMaker.h"
#include "settings/SupportFolder.h"
#include "sources/ContentFile.h"

#include <atomic>
#include <utility>
#include <variant>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

constexpr TimerMaker::Interval pollInterval{1.0};

std::optional<QString> readContent(const QString& path) {
    auto result = readContentFile(path, ByteOrderMark::drop);
    if (auto* text = std::get_if<QString>(&result)) return std::move(*text);
    return std::nullopt;
}

} // namespace

/// What outlives the source when it goes while a read is under way. Tasks hold it weakly and touch
/// nothing but `isWatching`; texts travel to them and back by value.
struct ObsidianSource::Watch {
    std::atomic<bool> isWatching = false;
    QString lastContent;
    ContentCallback callback;
    int readsInFlight = 0;
};

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
    , watch(std::make_shared<Watch>()) {}

ObsidianSource::~ObsidianSource() {
    stopWatching();
}

void ObsidianSource::startWatching(ContentCallback onChange) {
    stopWatching();
    watch->callback = std::move(onChange);
    watch->isWatching = true;
    watch->lastContent.clear();
    loadInitially();
    fileTimer = timerMaker.every(pollInterval, [this] { checkForUpdates(); });
}

void ObsidianSource::stopWatching() {
    fileTimer.reset();
    watch->isWatching = false;
    watch->callback = nullptr;
}

void ObsidianSource::loadInitially() {
    const std::weak_ptr weak = watch;
    const auto isWatching = [weak] {
        const auto state = weak.lock();
        return state && state->isWatching;
    };
    auto read = [isWatching, path = path]() -> std::optional<QString> {
        if (!isWatching()) return std::nullopt;
        return readContent(path).value_or(placeholder());
    };
    // Whoever watches by the time the text is there gets it.
    auto deliver = [weak](const QString& text) {
        const auto state = weak.lock();
        if (!state || !state->callback) return;
        // The callback may stop the watching and so let go of itself.
        const auto callback = state->callback;
        callback(text);
    };
    readInBackground(std::move(read), std::move(deliver));
}

void ObsidianSource::checkForUpdates() {
    // With no read under way `lastContent` is up to date, and slow reads do not pile up.
    if (!watch->callback || watch->readsInFlight > 0) return;
    auto read = [path = path, previous = watch->lastContent] {
        return readChangedContentFile(path, previous);
    };
    readInBackground(std::move(read), watch->callback);
}

void ObsidianSource::readInBackground(Read read, ContentCallback deliver) {
    ++watch->readsInFlight;
    taskRunner.run([weak = std::weak_ptr(watch), &queue = mainQueue, read = std::move(read),
                    deliver = std::move(deliver)]() mutable {
        // The callback moves on with the text, so that it is destroyed on the main thread.
        queue.post([weak, text = read(), deliver = std::move(deliver)] {
            const auto state = weak.lock();
            if (!state) return;
            --state->readsInFlight;
            if (!text) return;
            state->lastContent = *text;
            deliver(*text);
        });
    });
}

} // namespace tessaline

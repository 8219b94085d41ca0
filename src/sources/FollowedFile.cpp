#include "sources/FollowedFile.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "platform/TimerMaker.h"
#include "settings/TextFile.h"
#include "settings/WholeFile.h"

#include <QDateTime>
#include <QFile>

#include <optional>
#include <utility>

namespace tessaline {

namespace {

constexpr TimerMaker::Interval pollInterval{0.5};

/// What differs after a file was saved, at the latest once its clock has ticked.
struct Stamp {
    qint64 size = 0;
    QDateTime modified;
    QDateTime changed;

    bool operator==(const Stamp&) const = default;
};

Stamp stampOf(const QString& path) {
    QFile file;
    if (!openRegularFile(path, file)) return {};
    return {file.size(), file.fileTime(QFileDevice::FileModificationTime),
            file.fileTime(QFileDevice::FileMetadataChangeTime)};
}

/// A file saved so recently may be saved once more without another stamp.
bool isSettled(const Stamp& stamp) {
    constexpr qint64 milliseconds = 2000;
    return stamp.changed.msecsTo(QDateTime::currentDateTime()) > milliseconds;
}

} // namespace

struct FollowedFile::Follow {
    QString text;
    std::optional<Stamp> stamp; ///< of the file that `text` was read from, if that is sure
    Handler onChange;
    bool isReading = false;
};

FollowedFile::FollowedFile(QString path, QString text, MainQueue& queue, TaskRunner& runner,
                           TimerMaker& timerMaker, Handler onChange)
    : mainQueue(queue)
    , taskRunner(runner)
    , filePath(std::move(path))
    , follow(std::make_shared<Follow>(Follow{std::move(text), {}, std::move(onChange)}))
    , timer(timerMaker.every(pollInterval, [this] { check(); })) {}

FollowedFile::~FollowedFile() = default;

void FollowedFile::check() {
    if (std::exchange(follow->isReading, true)) return; // slow reads do not pile up
    taskRunner.run(
        [weak = std::weak_ptr(follow), &queue = mainQueue, path = filePath, known = follow->stamp] {
            const Stamp stamp = stampOf(path);
            std::optional<QString> text;
            if (known != stamp) text = readTextFile(path, ByteOrderMark::drop);
            queue.post([weak, stamp, text = std::move(text)] {
                const auto state = weak.lock();
                if (!state) return;
                state->isReading = false;
                if (!text) return;
                state->stamp = isSettled(stamp) ? std::optional(stamp) : std::nullopt;
                if (std::exchange(state->text, *text) == *text) return;
                // The handler may end the following, and with it itself.
                const Handler onChange = state->onChange;
                onChange(*text);
            });
        });
}

} // namespace tessaline

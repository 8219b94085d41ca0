#include "sources/FollowedFile.h"

#include "platform/RunThenPost.h"
#include "platform/TimerMaker.h"
#include "settings/TextFile.h"
#include "settings/WholeFile.h"

#include <QFile>

#include <utility>

namespace tessaline {

namespace {

constexpr TimerMaker::Interval pollInterval{0.5};

} // namespace

FollowedFile::Stamp FollowedFile::Stamp::of(const QString& path) {
    QFile file;
    if (!openRegularFile(path, file)) return {};
    return {file.size(), file.fileTime(QFileDevice::FileModificationTime),
            file.fileTime(QFileDevice::FileMetadataChangeTime)};
}

bool FollowedFile::Stamp::isSettled() const {
    constexpr qint64 milliseconds = 2000;
    return changed.msecsTo(QDateTime::currentDateTime()) > milliseconds;
}

FollowedFile::FollowedFile(QString path, QString text, MainQueue& queue, TaskRunner& runner,
                           TimerMaker& timerMaker, Handler handler)
    : mainQueue(queue)
    , taskRunner(runner)
    , filePath(std::move(path))
    , lastText(std::move(text))
    , onChange(std::move(handler))
    , timer(timerMaker.every(pollInterval, [this] { check(); })) {}

FollowedFile::~FollowedFile() = default;

void FollowedFile::check() {
    if (std::exchange(isReading, true)) return; // slow reads do not pile up
    const auto look = [path = filePath, known = stamp] {
        Look now{Stamp::of(path), std::nullopt};
        if (known != now.found) now.text = readTextFile(path, ByteOrderMark::drop);
        return now;
    };
    runThenPost(taskRunner, mainQueue, look,
                lifetime.guard([this](const Look& now) { take(now.found, now.text); }));
}

void FollowedFile::take(const Stamp& found, const std::optional<QString>& text) {
    isReading = false;
    if (!text) return;
    stamp = found.isSettled() ? std::optional(found) : std::nullopt;
    if (std::exchange(lastText, *text) == *text) return;
    // The handler may end the following, and with it itself.
    const Handler handler = onChange;
    handler(*text);
}

} // namespace tessaline

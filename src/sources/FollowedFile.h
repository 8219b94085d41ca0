#pragma once

#include "platform/Lifetime.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace tessaline {

class MainQueue;
class RepeatingTimer;
class TaskRunner;
class TimerMaker;

/// A file of the user's whose text is told anew whenever it is another one, however the file was
/// saved: written over, or replaced by another file of the name. While it cannot be read, or is not
/// UTF-8, nothing is told. Looks twice a second, in the background, and reads only what changed.
class FollowedFile {
public:
    using Handler = std::function<void(const QString& text)>;

    /// Starts to look. `text` is what the file is known to hold; `onChange` is called on the main
    /// thread with every later text. The ports are borrowed and outlive this.
    FollowedFile(QString path, QString text, MainQueue& mainQueue, TaskRunner& taskRunner,
                 TimerMaker& timerMaker, Handler onChange);
    ~FollowedFile();
    FollowedFile(const FollowedFile&) = delete;
    FollowedFile& operator=(const FollowedFile&) = delete;

    const QString& path() const { return filePath; }

private:
    /// What differs after a file was saved, at the latest once its clock has ticked.
    struct Stamp {
        static Stamp of(const QString& path);

        /// False for a file saved so recently that it may be saved once more without another stamp.
        bool isSettled() const;

        bool operator==(const Stamp&) const = default;

        qint64 size = 0;
        QDateTime modified;
        QDateTime changed;
    };

    struct Look {
        Stamp found;
        std::optional<QString> text; ///< of a file that may be another one
    };

    void check();
    void take(const Stamp& found, const std::optional<QString>& text);

    MainQueue& mainQueue;
    TaskRunner& taskRunner;
    const QString filePath;
    QString lastText;
    std::optional<Stamp> stamp; ///< of the file that `lastText` was read from, if that is sure
    Handler onChange;
    bool isReading = false;
    std::unique_ptr<RepeatingTimer> timer;
    Lifetime lifetime;
};

} // namespace tessaline

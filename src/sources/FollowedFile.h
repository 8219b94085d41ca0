#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace tessaline {

class MainQueue;
class RepeatingTimer;
class TaskRunner;
class TimerMaker;

/// A file of the user's whose text is told anew whenever it is another one, however the file was
/// saved: written over, or replaced by another file of the name. While it cannot be read, or is not
/// UTF-8, nothing is told. Looks twice a second, in the background, and reads only what changed.
/// Main thread only.
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
    struct Follow;

    void check();

    MainQueue& mainQueue;
    TaskRunner& taskRunner;
    const QString filePath;
    const std::shared_ptr<Follow> follow; ///< what tasks hold weakly
    std::unique_ptr<RepeatingTimer> timer;
};

} // namespace tessaline

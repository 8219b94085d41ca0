#pragma once

#include "platform/Lifetime.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace tessaline {

class AppSettings;
class FollowedFile;
class SourceManager;
class UsageRecorder;
struct Platform;

/// Takes the scripts that the user hands over: pasted, opened and followed ones. Each makes the
/// clipboard the active source, which keeps and shows it.
class ScriptIntake {
public:
    /// Borrows everything.
    ScriptIntake(SourceManager& sources, const AppSettings& settings, const Platform& platform,
                 UsageRecorder& recorder);
    ~ScriptIntake();

    /// Shows the last script that was opened so far, and every later one at once.
    void start();

    /// Shows a text as if it had been pasted. An empty one changes nothing.
    void open(const QString& text);

    /// The same with the text of a file, which is shown again whenever it changes on disk, until
    /// something else is shown. An empty one changes nothing, then and later.
    void follow(const QString& path, const QString& text);
    void stopFollowing();

    /// Empty: no file is followed.
    QString followedPath() const;

    /// Shows the clipboard's text. `done` is told why nothing was pasted, in one line, or an empty
    /// text. Not called once this is gone.
    void paste(std::function<void(const QString& problem)> done);

private:
    void show(const QString& text);
    void makeClipboardActive();
    void trackPaste();

    SourceManager& sources;
    const AppSettings& settings;
    const Platform& platform;
    UsageRecorder& recorder;
    std::unique_ptr<FollowedFile> followedFile;
    bool isStarted = false;
    std::optional<QString> waiting; ///< for the start
    Lifetime lifetime;
};

} // namespace tessaline

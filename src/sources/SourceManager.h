#pragma once

#include "platform/Lifetime.h"
#include "render/markdown/WordTally.h"
#include "settings/AppleNotesConfiguration.h"
#include "settings/SourceType.h"
#include "sources/ContentSource.h"

#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace tessaline {

class AppSettings;
class ClipboardSource;
class NotificationCenter;
class UsageRecorder;

/// Owns the content sources, knows which one is active, and hands on what that one delivers. Posts
/// its notifications with itself as the sender.
class SourceManager {
public:
    /// Another source is active; user info "sourceType" holds its `SourceType`.
    static QString activeSourceDidChangeNotification();

    /// A text was handed on; user info "content" holds it as a `QString`.
    static QString contentDidUpdateNotification();

    /// Registers the two sources and makes the one active that the settings name, if it is enabled,
    /// else the clipboard: this saves the settings and posts the change. Watching starts later.
    SourceManager(AppSettings& settings, UsageRecorder& recorder, NotificationCenter& notifications,
                  std::unique_ptr<ContentSource> obsidian,
                  std::unique_ptr<ClipboardSource> clipboard);
    ~SourceManager();
    SourceManager(const SourceManager&) = delete;
    SourceManager& operator=(const SourceManager&) = delete;

    /// Adds a source for a type that has none; a type that has one keeps it. The program itself
    /// registers none for Apple Notes, which is not offered to the user.
    void registerSource(SourceType type, std::unique_ptr<ContentSource> source);

    /// Starts the active source, if there is one.
    void startWatching();

    /// Stops the active source and makes another one active; does not start it. A type without a
    /// source (Apple Notes) leaves none active. Saves the settings and posts the change.
    void setActiveSource(SourceType type);

    /// Switches a source on or off in the settings. Switching the active one off makes the
    /// clipboard active and starts it.
    void setSourceEnabled(SourceType type, bool enabled);

    /// Makes the next of the enabled sources active and starts it; with fewer than two of them,
    /// nothing changes.
    void cycleSource();

    /// Takes the clipboard's text, if there is one, and hands it on if the clipboard is the active
    /// source. While that is watched the text is handed on twice, by it and from here.
    void pasteFromClipboard();

    /// As above, with `text` in the clipboard's place.
    void pasteText(const QString& text);

    /// Stores the picked note in the settings and saves them; a source for Apple Notes, if one is
    /// registered, reads it from now on.
    void updateAppleNotesConfig(const std::optional<AppleNotesConfiguration>& config);

    /// The source that delivers, or null.
    ContentSource* activeSource() const { return active; }

    /// The last text handed on.
    QString currentContent() const { return content; }

    /// How many words it has.
    qsizetype currentWordCount() const { return wordCount; }

    /// Called with every text handed on.
    std::function<void(const QString& text)> onContentUpdate;

private:
    void handleContentUpdate(const QString& text);
    void handleContentPaste(const std::optional<QString>& pasted);

    AppSettings& settings;
    UsageRecorder& recorder;
    NotificationCenter& notifications;
    std::map<SourceType, std::unique_ptr<ContentSource>> sources;
    ClipboardSource* clipboard; ///< one of `sources`
    ContentSource* active = nullptr;
    QString content;
    qsizetype wordCount = 0; ///< of `content`
    WordTally words;
    Lifetime lifetime;
};

} // namespace tessaline

#pragma once

#include "sources/ContentSource.h"

#include <QString>

#include <optional>

namespace tessaline {

class Pasteboard;

/// The text that the user pasted last. It is kept in a file, byte for byte, and shown again after a
/// restart. The clipboard itself is not watched.
class ClipboardSource final : public ContentSource {
public:
    /// Delivered when there is nothing to show; the prompter then shows a hint in its place.
    static QString placeholder();

    /// The file that keeps the last text.
    static QString contentFilePath();

    explicit ClipboardSource(const Pasteboard& pasteboard, QString path = contentFilePath());

    /// Delivers the kept text, or the placeholder, before it returns. In place of the kept text, it
    /// delivers the one that was pasted last if that could not be kept.
    void startWatching(ContentCallback onChange) override;
    void stopWatching() override;

    /// Takes the clipboard's text: keeps it, delivers it and returns it. None, and no change, when
    /// the clipboard holds no text or an empty one. A text that cannot be saved is shown all the
    /// same, and the log tells why.
    std::optional<QString> pasteFromClipboard();

    /// As above, with `text` in the clipboard's place.
    std::optional<QString> pasteText(const QString& text);

    /// The last text loaded or pasted.
    QString currentContent() const { return content; }

private:
    void persist();

    const Pasteboard& pasteboard;
    const QString path;
    QString content;
    bool isKept = true; ///< `content` is in the file, or nothing was pasted yet
    ContentCallback watchCallback;
};

} // namespace tessaline

#pragma once

#include <QString>

#include <optional>

namespace tessaline {

class ProcessRunner;

/// A text, or why there is none, in one line without a full stop.
struct ReadText {
    std::optional<QString> text;
    QString problem;
};

/// How much of a document is too much: its file, and the text that comes of it.
inline constexpr qint64 documentLimit = qint64{64} << 20;

/// Whether a file of this name may be a document of a word processor that can be read.
bool isDocumentName(const QString& path);

/// Has pandoc, a program of its own, turn such a document into Markdown, within 20 seconds and
/// little memory: nobody knows what is in it. The path begins at the root. Any thread.
ReadText readDocument(const QString& path, ProcessRunner& processes);

/// What people write for other programs than ours to read, taken out of Markdown that pandoc made:
/// backslashes before marks, links behind their texts, empty paragraphs.
QString plainMarkdown(const QString& markdown);

} // namespace tessaline

#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryFile>

#include <memory>

namespace tessaline {

/// A script as the running program can read it for itself.
class HandedScript {
public:
    /// Whether the running program finds the same file behind the path: a regular one that is not
    /// reached through what each process has for itself, such as /dev/stdin or /proc/self.
    static bool isSameForAll(const QString& path);

    /// The file at the absolute path.
    explicit HandedScript(const QString& file) : filePath(file) {}
    /// The text, put into a private file that goes away with this object: in the first of the
    /// folders that has room.
    HandedScript(const QString& text, const QStringList& folders);

    /// Where to read it; empty: nowhere, for the reason in `problem`.
    const QString& path() const { return filePath; }
    const QString& problem() const { return reason; }

private:
    bool write(const QByteArray& bytes, const QString& folder);

    std::unique_ptr<QTemporaryFile> spool;
    QString filePath;
    QString reason;
};

} // namespace tessaline

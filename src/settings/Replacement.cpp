#include "settings/Replacement.h"

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <unistd.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::minutes longestSave{10};
constexpr int digits = 8;
constexpr int mostLinks = 40; ///< as the system follows at most

/// What the new version is called until it is complete, without the digits at the end. Nobody else
/// names files like this, so that one may be removed by its name: `config.json.backup` may not.
QString stemBeside(const QString& target) {
    return target + u".tessaline-"_s;
}

QString randomDigits() {
    return u"%1"_s.arg(QRandomGenerator::system()->generate(), digits, 16, QChar(u'0'));
}

bool isHexDigit(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
}

bool isStale(const QFileInfo& file, const QString& stem, const QDateTime& now) {
    const QString name = file.fileName();
    return name.size() == stem.size() + digits && name.startsWith(stem) &&
           std::all_of(name.end() - digits, name.end(), isHexDigit) &&
           file.ownerId() == ::geteuid() && file.lastModified().addDuration(longestSave) < now;
}

void removeStaleFilesBeside(const QString& target) {
    const QString stem = QFileInfo(stemBeside(target)).fileName();
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QDirIterator files(QFileInfo(target).path(), QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    while (files.hasNext()) {
        files.next();
        if (isStale(files.fileInfo(), stem, now)) QFile::remove(files.filePath());
    }
}

/// The file that is meant, whether it exists or not.
QString behindLinks(const QString& path) {
    QFileInfo file(path);
    for (int link = 0; link < mostLinks && file.isSymLink(); ++link)
        file.setFile(file.symLinkTarget());
    return file.filePath();
}

/// Nothing is buffered. The rest of a short write is asked for again: on a full disk that fails,
/// and tells why.
bool writePiece(QFile& file, const QByteArray& piece) {
    qint64 done = 0;
    while (done < piece.size()) {
        const qint64 written = file.write(piece.constData() + done, piece.size() - done);
        if (written <= 0) return false;
        done += written;
    }
    return true;
}

bool writeAll(QFile& file, const FilePieces& pieces) {
    for (QByteArray piece = pieces(); !piece.isEmpty(); piece = pieces())
        if (!writePiece(file, piece)) return false;
    return true;
}

/// Some file systems learn only here that they are full; those that cannot synchronise at all say
/// EINVAL.
QString synchronise(const QFile& file) {
    while (::fsync(file.handle()) != 0) {
        if (errno == EINVAL) break;
        if (errno != EINTR) return qt_error_string(errno);
    }
    return {};
}

QString overwrite(const QString& target, const FilePieces& pieces) {
    QFile file(target);
    const bool isWritten =
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, pieces);
    return isWritten ? synchronise(file) : file.errorString();
}

/// Like its model, the new file is at no moment open to others than those who may see it. Not every
/// file system knows permissions.
bool openNew(QFile& file, const QFileInfo& model) {
    constexpr auto mode = QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered;
    if (!model.exists()) return file.open(mode);
    const bool isOpen = file.open(mode, QFile::ReadOwner | QFile::WriteOwner);
    if (isOpen) file.setPermissions(model.permissions());
    return isOpen;
}

QString putInPlace(const QString& file, const QString& target) {
    const QByteArray from = QFile::encodeName(file);
    const bool isDone = ::rename(from.constData(), QFile::encodeName(target).constData()) == 0;
    return isDone ? QString() : qt_error_string(errno);
}

QString writeBeside(const QFileInfo& old, const FilePieces& pieces) {
    const QString target = old.filePath();
    const QString beside = stemBeside(target) + randomDigits();
    QString problem = createFile(beside, pieces, old);
    if (!problem.isEmpty()) return problem;
    problem = putInPlace(beside, target);
    if (!problem.isEmpty()) QFile::remove(beside);
    return problem;
}

} // namespace

QString replaceFile(const QString& path, const FilePieces& pieces) {
    if (path.isEmpty()) return u"No file is named"_s;
    const QString target = behindLinks(path);
    const QFileInfo old(target);
    if (old.exists()) {
        if (!old.isWritable()) return u"The file is not writable"_s;
        if (!QFileInfo(old.path()).isWritable()) return overwrite(target, pieces);
    }
    removeStaleFilesBeside(target);
    return writeBeside(old, pieces);
}

QString createFile(const QString& path, const FilePieces& pieces, const QFileInfo& model) {
    QFile file(path);
    if (!openNew(file, model)) return file.errorString();
    QString problem = writeAll(file, pieces) ? synchronise(file) : file.errorString();
    if (!problem.isEmpty()) file.remove();
    return problem;
}

} // namespace tessaline

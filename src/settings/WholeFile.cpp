#include "settings/WholeFile.h"

#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

void report(QString* error, const QString& description) {
    if (error) *error = description;
}

/// Why the file with this status is not to be touched; empty when it is a regular one.
QString objection(const struct stat& status) {
    return S_ISREG(status.st_mode) ? QString() : u"Not a regular file"_s;
}

/// Why the file at `path` is not to be read or replaced; empty when it is a regular one.
/// `missing` tells whether there is none at all, behind a symbolic link neither.
QString objection(const QByteArray& path, bool& missing) {
    struct stat status {};
    missing = false;
    if (::stat(path.constData(), &status) == 0) return objection(status);
    missing = errno == ENOENT;
    return qt_error_string(errno);
}

/// Opens a file that was regular a moment ago. Without blocking, since it may have become a FIFO.
QString openRegular(const QByteArray& path, QFile& file) {
    const int descriptor = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) return qt_error_string(errno);
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return file.errorString();
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) return qt_error_string(errno);
    return objection(status);
}

/// QSaveFile commits what a full disk cut off, as well as an empty file in place of bytes that it
/// could not flush. So nothing is buffered, and the rest of a short write is asked for again: that
/// fails, and tells why.
bool writeAll(QSaveFile& file, const QByteArray& bytes) {
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 written = file.write(bytes.constData() + done, bytes.size() - done);
        if (written <= 0) return false;
        done += written;
    }
    return true;
}

/// QSaveFile commits what did not reach the disk. Some file systems learn only here that they are
/// full; those that cannot synchronise at all say EINVAL.
QString synchronise(const QSaveFile& file) {
    while (::fsync(file.handle()) != 0) {
        if (errno == EINVAL) break;
        if (errno != EINTR) return qt_error_string(errno);
    }
    return {};
}

/// Writes the file, all but putting it in its place. Returns why not.
QString writeNew(QSaveFile& file, const QByteArray& bytes) {
    const bool isWritten =
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, bytes);
    return isWritten ? synchronise(file) : file.errorString();
}

} // namespace

std::optional<QByteArray> readWholeFile(const QString& path, QString* error, qint64 limit) {
    const QByteArray nativePath = QFile::encodeName(path);
    QFile file;
    bool missing = false;
    QString problem = objection(nativePath, missing);
    if (problem.isEmpty()) problem = openRegular(nativePath, file);
    if (problem.isEmpty() && file.size() > limit)
        problem = u"The file is larger than %1 bytes"_s.arg(limit);
    if (!problem.isEmpty()) {
        report(error, problem);
        return std::nullopt;
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        report(error, file.errorString());
        return std::nullopt;
    }
    return bytes;
}

bool writeWholeFile(const QString& path, const QByteArray& bytes, QString* error) {
    bool missing = false;
    QString problem = objection(QFile::encodeName(path), missing);
    if (problem.isEmpty() || missing) {
        QSaveFile file(path);
        file.setDirectWriteFallback(true);
        problem = writeNew(file, bytes);
        if (problem.isEmpty() && !file.commit()) problem = file.errorString();
    }
    report(error, problem);
    return problem.isEmpty();
}

} // namespace tessaline

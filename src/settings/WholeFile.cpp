#include "settings/WholeFile.h"

#include "settings/FilePath.h"
#include "settings/Replacement.h"

#include <QFile>

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
QString openCautiously(const QByteArray& path, QFile& file) {
    const int descriptor = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) return qt_error_string(errno);
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return file.errorString();
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) return qt_error_string(errno);
    return objection(status);
}

} // namespace

bool openRegularFile(const QString& path, QFile& file, QString* error) {
    const QByteArray native = nativePath(path);
    bool missing = false;
    QString problem = objection(native, missing);
    if (problem.isEmpty()) problem = openCautiously(native, file);
    report(error, problem);
    return problem.isEmpty();
}

std::optional<QByteArray> readWholeFile(const QString& path, QString* error, qint64 limit) {
    QFile file;
    if (!openRegularFile(path, file, error)) return std::nullopt;
    if (file.size() > limit) {
        report(error, u"The file is larger than %1 bytes"_s.arg(limit));
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
    return writeWholeFile(path, inOnePiece(bytes), error);
}

bool writeWholeFile(const QString& path, const FilePieces& pieces, QString* error) {
    bool missing = false;
    QString problem = objection(nativePath(path), missing);
    if (hasForeignBytes(path)) {
        problem = u"The name is not valid UTF-8"_s;
    } else if (problem.isEmpty() || missing) {
        problem = replaceFile(path, pieces);
    }
    report(error, problem);
    return problem.isEmpty();
}

} // namespace tessaline

#include "cli/TextInput.h"

#include "settings/FilePath.h"
#include "settings/Utf8.h"
#include "settings/WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Reads until the end. Returns what went wrong, if anything.
QString readAll(int descriptor, QByteArray& bytes) {
    constexpr qsizetype leastRead = 1 << 16;
    qsizetype size = 0;
    while (size <= defaultFileLimit) {
        if (size == bytes.size()) bytes.resize(size + std::max(size, leastRead));
        const auto count =
            ::read(descriptor, bytes.data() + size, std::size_t(bytes.size() - size));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return qt_error_string(errno);
        if (count == 0) {
            bytes.truncate(size);
            return {};
        }
        size += count;
    }
    return u"Larger than %1 bytes"_s.arg(defaultFileLimit);
}

QString readFile(const QString& path, QByteArray& bytes) {
    const int descriptor = ::open(nativePath(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) return qt_error_string(errno);
    struct stat status {};
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        bytes.resize(std::min<qsizetype>(status.st_size, defaultFileLimit) + 1);
    QString problem = readAll(descriptor, bytes);
    ::close(descriptor);
    return problem;
}

} // namespace

std::optional<QString> readTextInput(const QString& path, QString* error) {
    const bool isStandardInput = path == "-"_L1;
    QByteArray bytes;
    QString problem = isStandardInput ? readAll(STDIN_FILENO, bytes) : readFile(path, bytes);
    std::optional<QString> text;
    if (problem.isEmpty()) {
        text = decodeUtf8(bytes, ByteOrderMark::drop);
        if (!text) problem = u"Not valid UTF-8 text"_s;
    }
    if (!text && error)
        *error = u"cannot read %1: %2"_s.arg(isStandardInput ? u"standard input"_s : path, problem);
    return text;
}

} // namespace tessaline

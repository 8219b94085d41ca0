#include "app/remote/HandedScript.h"

#include "settings/FilePath.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
namespace fs = std::filesystem;

namespace {

constexpr int mostLinks = 40; ///< as the system follows at most

/// Whether a folder, given without links, shows each process something else.
bool isOfOneProcess(const fs::path& folder) {
    const QByteArray path = QByteArray::fromStdString(folder.native() + '/');
    return path.startsWith("/proc/") || path.startsWith("/dev/fd/");
}

} // namespace

bool HandedScript::isSameForAll(const QString& path) {
    std::error_code error;
    fs::path file = nativePath(absolutePath(path)).toStdString();
    if (!fs::is_regular_file(file, error)) return false;
    for (int link = 0; link < mostLinks; ++link) {
        const fs::path folder = fs::canonical(file.parent_path(), error);
        if (error || isOfOneProcess(folder)) return false;
        file = folder / file.filename();
        const fs::path target = fs::read_symlink(file, error);
        if (error) return true; // the file itself
        file = folder / target;
    }
    return false;
}

HandedScript::HandedScript(const QString& text, const QStringList& folders) {
    const QByteArray bytes = text.toUtf8();
    const bool isWritten = std::any_of(folders.begin(), folders.end(),
                                       [&](const QString& folder) { return write(bytes, folder); });
    if (isWritten) filePath = spool->fileName();
}

bool HandedScript::write(const QByteArray& bytes, const QString& folder) {
    spool = std::make_unique<QTemporaryFile>(folder + u"/script-XXXXXX.md"_s);
    const bool isWritten = spool->open() && spool->write(bytes) == bytes.size() && spool->flush();
    if (!isWritten)
        reason = u"cannot write %1: %2"_s.arg(spool->fileTemplate(), spool->errorString());
    return isWritten;
}

} // namespace tessaline

#include "sources/obsidian/FileCopy.h"

#include "settings/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>
#include <system_error>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

std::filesystem::path nativePath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

bool succeeded(const std::error_code& code, QString* error) {
    if (code) *error = QString::fromLocal8Bit(code.message().c_str());
    return !code;
}

} // namespace

bool createFolders(const QString& path, QString* error) {
    std::error_code code;
    std::filesystem::create_directories(nativePath(path), code);
    return succeeded(code, error);
}

bool replaceWithCopy(const QString& source, const QString& target, QString* error) {
    const auto bytes = readWholeFile(source, error);
    if (!bytes) return false;
    // In a folder of its own beside the target, so that no name can be taken already.
    const QTemporaryDir workshop(QFileInfo(target).path() + "/.tessaline-XXXXXX"_L1);
    if (!workshop.isValid()) {
        *error = workshop.errorString();
        return false;
    }
    const QString copy = workshop.filePath(u"copy"_s);
    if (!writeWholeFile(copy, *bytes, error)) return false;
    std::error_code code;
    std::filesystem::rename(nativePath(copy), nativePath(target), code);
    return succeeded(code, error);
}

} // namespace tessaline

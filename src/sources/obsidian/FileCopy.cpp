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

std::filesystem::path fileSystemPath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

/// Says what went wrong, and with which file.
bool fail(const QString& path, const QString& reason, QString* error) {
    *error = path + u": "_s + reason;
    return false;
}

bool succeeded(const std::error_code& code, const QString& path, QString* error) {
    return !code || fail(path, QString::fromLocal8Bit(code.message().c_str()), error);
}

} // namespace

bool createFolders(const QString& path, QString* error) {
    std::error_code code;
    std::filesystem::create_directories(fileSystemPath(path), code);
    return succeeded(code, path, error);
}

bool replaceWithCopy(const QString& source, const QString& target, QString* error) {
    QString reason;
    const auto bytes = readWholeFile(source, &reason);
    if (!bytes) return fail(source, reason, error);
    // In a folder of its own beside the target, so that no name can be taken already.
    const QTemporaryDir workshop(QFileInfo(target).path() + "/.tessaline-XXXXXX"_L1);
    if (!workshop.isValid()) return fail(target, workshop.errorString(), error);
    const QString copy = workshop.filePath(u"copy"_s);
    if (!writeWholeFile(copy, *bytes, &reason)) return fail(target, reason, error);
    std::error_code code;
    std::filesystem::rename(fileSystemPath(copy), fileSystemPath(target), code);
    return succeeded(code, target, error);
}

} // namespace tessaline

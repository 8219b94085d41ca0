#include "sources/files/ScriptFile.h"

#include "settings/FilePath.h"
#include "settings/WholeFile.h"
#include "sources/files/ScriptText.h"

#include <QFile>

#include <filesystem>
#include <system_error>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Enough to tell what a file holds.
constexpr qint64 beginningSize = qint64{64} << 10;

bool isFolder(const QString& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(nativePath(path).toStdString(), ignored);
}

bool isZip(QByteArrayView beginning) {
    return beginning.startsWith("PK\x03\x04");
}

ReadText refused(const QString& problem) {
    return {std::nullopt, problem};
}

ReadText tooLarge(qint64 limit) {
    return refused(u"it is larger than %1 MiB"_s.arg(limit >> 20));
}

ReadText readText(QFile& file) {
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) return refused(file.errorString());
    auto text = decodeScript(bytes);
    return text ? ReadText{std::move(text), {}} : refused(u"it is not text"_s);
}

} // namespace

ReadText readScriptFile(const QString& path, ProcessRunner& processes, qint64 limit) {
    if (!isDocumentFile(path)) return readTextScript(path, limit);
    std::error_code ignored;
    const auto size = std::filesystem::file_size(nativePath(path).toStdString(), ignored);
    return size > quint64(documentLimit) ? tooLarge(documentLimit) : readDocument(path, processes);
}

ReadText readTextScript(const QString& path, qint64 limit) {
    if (isFolder(path)) return refused(u"it is a folder"_s);
    QFile file;
    QString problem;
    if (!openRegularFile(path, file, &problem)) return refused(problem);
    if (file.size() > limit) return tooLarge(limit);
    return isBinary(file.peek(beginningSize)) ? refused(u"it is not text"_s) : readText(file);
}

bool isDocumentFile(const QString& path) {
    QFile file;
    return isDocumentName(path) && openRegularFile(path, file) && isZip(file.peek(4));
}

QStringList scriptNamePatterns() {
    return {u"*.md"_s, u"*.markdown"_s, u"*.txt"_s, u"*.text"_s, u"*.docx"_s, u"*.odt"_s};
}

QString shownFileName(const QString& path) {
    return path.section(u'/', -1, -1, QString::SectionSkipEmpty);
}

QString briefFileName(const QString& path) {
    constexpr qsizetype longest = 40;
    constexpr qsizetype half = longest / 2;
    QString name = shownFileName(path);
    if (name.size() <= longest) return name;
    QString begin = name.first(half);
    QString end = name.last(half - 1);
    if (begin.back().isHighSurrogate()) begin.chop(1);
    if (end.front().isLowSurrogate()) end.remove(0, 1);
    return begin + u'…' + end;
}

} // namespace tessaline

#include "sources/ClipboardSource.h"

#include "platform/Pasteboard.h"
#include "settings/SupportFolder.h"
#include "settings/WholeFile.h"
#include "sources/ContentFile.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include <utility>
#include <variant>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

Q_LOGGING_CATEGORY(clipboardLog, "app.tessaline.Tessaline.clipboard", QtInfoMsg)

} // namespace

QString ClipboardSource::placeholder() {
    return u"PLACEHOLDER"_s;
}

QString ClipboardSource::contentFilePath() {
    return supportFolderPath() + "/clipboard-content.md"_L1;
}

ClipboardSource::ClipboardSource(const Pasteboard& clipboard, QString filePath)
    : pasteboard(clipboard), path(std::move(filePath)) {}

void ClipboardSource::startWatching(ContentCallback onChange) {
    watchCallback = onChange;
    if (!isKept) {
        // Of the file, an earlier text would come back.
        onChange(QString(content));
        return;
    }
    const auto loaded = readContentFile(path, ByteOrderMark::keep);
    const auto* text = std::get_if<QString>(&loaded);
    if (text && !text->isEmpty()) {
        content = *text;
        onChange(*text);
    } else {
        onChange(placeholder());
    }
}

void ClipboardSource::stopWatching() {
    watchCallback = nullptr;
}

std::optional<QString> ClipboardSource::pasteFromClipboard() {
    const auto text = pasteboard.plainText();
    return text ? pasteText(*text) : std::nullopt;
}

std::optional<QString> ClipboardSource::pasteText(const QString& text) {
    if (text.isEmpty()) return std::nullopt;
    content = text;
    persist();
    // The callback may stop the watching and so let go of itself.
    if (const auto callback = watchCallback) callback(text);
    return text;
}

void ClipboardSource::persist() {
    QDir().mkpath(QFileInfo(path).path());
    QString error;
    isKept = writeWholeFile(path, content.toUtf8(), &error);
    if (!isKept)
        qCWarning(clipboardLog, "The pasted text is not kept for the next start: %ls",
                  qUtf16Printable(error));
}

} // namespace tessaline

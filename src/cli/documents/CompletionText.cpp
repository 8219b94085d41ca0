#include "cli/documents/CompletionText.h"

namespace tessaline {

QString joinedWords(std::span<const QStringView> words) {
    QString text;
    for (const QStringView word : words) {
        if (!text.isEmpty()) text += u' ';
        text += word;
    }
    return text;
}

QString firstSentence(QStringView help) {
    QString text = help.toString().simplified();
    const qsizetype end = text.indexOf(u". ");
    if (end >= 0) text.truncate(end);
    if (text.endsWith(u'.')) text.chop(1);
    return text;
}

} // namespace tessaline

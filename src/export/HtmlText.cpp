#include "export/HtmlText.h"

#include "settings/LoneSurrogate.h"

#include <QString>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isAllowed(QStringView text, qsizetype index) {
    const QChar c = text[index];
    return c == u'\t' || c == u'\n' ||
           (c.category() != QChar::Other_Control && !isLoneSurrogate(text, index));
}

void appendEscaped(QString& out, QChar c) {
    switch (c.unicode()) {
    case u'&':
        out += "&amp;"_L1;
        break;
    case u'<':
        out += "&lt;"_L1;
        break;
    case u'>':
        out += "&gt;"_L1;
        break;
    case u'"':
        out += "&quot;"_L1;
        break;
    default:
        out += c;
    }
}

} // namespace

QByteArray htmlText(QStringView text) {
    QString escaped;
    escaped.reserve(text.size() + text.size() / 8);
    for (qsizetype index = 0; index < text.size(); ++index) {
        const QChar replacement = QChar::ReplacementCharacter;
        appendEscaped(escaped, isAllowed(text, index) ? text[index] : replacement);
    }
    return escaped.toUtf8();
}

} // namespace tessaline

#include "cli/documents/Roff.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString roffText(QStringView text) {
    QString result;
    if (text.startsWith(u'.')) result += "\\&"_L1; // no request, should a line begin here
    for (const QChar c : text) {
        if (c == u'\\') {
            result += "\\e"_L1;
        } else if (c == u'-') {
            result += "\\-"_L1; // stays a plain minus when somebody copies it
        } else if (c == u'\'') {
            result += "\\(aq"_L1;
        } else if (c == u'~') {
            result += "\\(ti"_L1;
        } else {
            result += c;
        }
    }
    return result;
}

QString roffParagraphs(QStringView text) {
    QString result;
    for (const QStringView line : text.trimmed().tokenize(u'\n'))
        result += line.isEmpty() ? u".PP\n"_s : roffText(line) + u'\n';
    return result;
}

QString roffEntry(const QString& term, QStringView text) {
    return ".TP\n"_L1 + term + u'\n' + roffParagraphs(text);
}

QString roffBold(QStringView text) {
    return "\\fB"_L1 + roffText(text) + "\\fP"_L1;
}

QString roffItalic(QStringView text) {
    return "\\fI"_L1 + roffText(text) + "\\fP"_L1;
}

} // namespace tessaline

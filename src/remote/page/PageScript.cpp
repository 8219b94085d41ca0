#include "remote/page/PageScript.h"

#include "reading/Script.h"
#include "settings/JsonWriter.h"

#include <QList>
#include <QString>

#include <algorithm>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a page shows it as.
QString kindOf(const Script& script, std::size_t index) {
    if (const int level = script.headingLevel(index); level != 0) return u"h%1"_s.arg(level);
    switch (script.kind(index)) {
    case ParagraphKind::listItem:
        return u"item"_s;
    case ParagraphKind::quote:
        return u"quote"_s;
    case ParagraphKind::code:
        return u"code"_s;
    case ParagraphKind::rule:
        return u"rule"_s;
    case ParagraphKind::body:
    case ParagraphKind::heading: // a later piece of a long one
        break;
    }
    return u"text"_s;
}

} // namespace

void PageScript::show(const std::shared_ptr<const Script>& script) {
    if (script == current) return;
    current = script;
    ++currentVersion;
}

std::size_t PageScript::paragraphs() const {
    return current ? current->paragraphs.size() : 0;
}

std::optional<QByteArray> PageScript::part(const QByteArray& name) const {
    const QList<QByteArray> words = name.split('/');
    if (words.size() != 2 || words[0] != QByteArray::number(currentVersion)) return {};
    bool isNumber = false;
    const std::size_t number = words[1].toUInt(&isNumber);
    const std::size_t begin = number * paragraphsPerPart;
    if (!isNumber || begin >= paragraphs()) return {};
    QByteArray bytes;
    JsonWriter json(bytes, JsonWriter::Layout::compact);
    json.beginArray();
    for (std::size_t i = begin; i < std::min(begin + paragraphsPerPart, paragraphs()); ++i) {
        json.beginArray();
        json.string(kindOf(*current, i));
        json.string(current->content(i).text);
        json.endArray();
    }
    json.endArray();
    return bytes;
}

} // namespace tessaline

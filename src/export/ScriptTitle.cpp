#include "export/ScriptTitle.h"

#include "render/markdown/CharacterClasses.h"
#include "render/markdown/MarkdownLine.h"
#include "render/markdown/MarkdownRenderer.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString scriptTitle(QStringView content) {
    bool inCodeBlock = false;
    for (const QStringView line : content.tokenize(u'\n')) {
        if (trimmedInline(line).startsWith(u"```")) {
            inCodeBlock = !inCodeBlock;
        } else if (!inCodeBlock && MarkdownLine::parse(line).kind == MarkdownLine::Kind::header) {
            QString heading = MarkdownRenderer(1).render(line).text.simplified();
            if (!heading.isEmpty()) return heading;
        }
    }
    return u"Tessaline"_s;
}

} // namespace tessaline

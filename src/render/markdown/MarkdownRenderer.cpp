#include "render/markdown/MarkdownRenderer.h"

#include "render/markdown/DocumentRenderer.h"
#include "render/markdown/MarkdownLine.h"
#include "render/markdown/WordCount.h"

namespace tessaline {

MarkdownRenderer::MarkdownRenderer(double size)
    : baseFont{TextFont::Family::system, TextFont::Weight::medium, false, size}
    , textColor{TextColor::Base::text, 1.0}
    , fontSize(size) {}

StyledText MarkdownRenderer::render(QStringView content) const {
    DocumentRenderer document(*this, content.size());
    bool inCodeBlock = false;
    QString code;
    const auto appendCodeBlock = [&] {
        document.appendCode(code);
        document.appendNewline();
    };
    for (qsizetype begin = 0; begin <= content.size();) {
        const qsizetype newline = content.indexOf(u'\n', begin);
        const bool isLast = newline < 0;
        const QStringView line = content.sliced(begin, (isLast ? content.size() : newline) - begin);
        if (isCodeFence(line)) {
            if (inCodeBlock) appendCodeBlock();
            code.clear();
            inCodeBlock = !inCodeBlock;
        } else if (inCodeBlock) {
            if (!code.isEmpty()) code += u'\n';
            code += line;
        } else {
            document.appendLine(line);
            if (!isLast) document.appendNewline();
        }
        if (isLast) break;
        begin = newline + 1;
    }
    if (inCodeBlock && !code.isEmpty()) appendCodeBlock();
    return document.take();
}

qsizetype MarkdownRenderer::wordCount(QStringView text) {
    return countWords(text);
}

} // namespace tessaline

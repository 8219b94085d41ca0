#include "reading/MarkdownText.h"

#include <utility>

namespace tessaline {

MarkdownText::MarkdownText(QString markdown, const DocumentRenderer& lineRenderer)
    : content(std::move(markdown)), renderer(lineRenderer) {}

DocumentRenderer MarkdownText::rendererCopy() const {
    const std::scoped_lock lock(mutex);
    return renderer;
}

StyledFragment copyOf(const StyledText& line) {
    return {QStringView(line.text).toString(), line.runs};
}

StyledFragment MarkdownText::paragraph(const ScriptParagraph& paragraph) const {
    if (!paragraph.isWholeLine()) {
        const auto& [start, line] = longLines.at(paragraph.origin);
        return fragmentOf(line->text, line->runs, paragraph.start - start, paragraph.length);
    }
    const std::scoped_lock lock(mutex);
    return copyOf(renderLine(renderer, lineAt(content, paragraph.origin),
                             paragraph.fence != ScriptParagraph::Fence::outside));
}

std::optional<QStringView> MarkdownText::originOf(const ScriptParagraph& paragraph) const {
    return lineAt(content, paragraph.origin);
}

const StyledText& renderLine(DocumentRenderer& renderer, QStringView line, bool isCode) {
    renderer.clear();
    if (isCode) {
        renderer.appendCode(line);
    } else {
        renderer.appendLine(line);
    }
    renderer.removeCarriageReturns();
    return renderer.current();
}

QStringView lineAt(QStringView text, qsizetype begin) {
    const qsizetype newline = text.indexOf(u'\n', begin);
    return text.sliced(begin, (newline < 0 ? text.size() : newline) - begin);
}

} // namespace tessaline

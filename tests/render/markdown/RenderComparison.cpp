#include "render/markdown/RenderComparison.h"

#include "render/markdown/MarkdownRenderer.h"
#include "support/texts/EscapedText.h"
#include "support/texts/RendererOracle.h"
#include "support/texts/StyledPiece.h"

#include <QString>

#include <algorithm>
#include <sstream>

namespace tessaline {

namespace {

constexpr double fontSize = 16;

bool differs(QStringView content) {
    const StyledText rendered = MarkdownRenderer(fontSize).render(content);
    const StyledText expected = RendererOracle(fontSize).render(content);
    return !runDefect(rendered).isEmpty() || rendered.text != expected.text ||
           piecesOf(rendered) != piecesOf(expected) ||
           MarkdownRenderer::wordCount(content) != RendererOracle::wordCount(content);
}

/// Takes ever smaller stretches away as long as the rest still differs.
QString minimised(QString content) {
    for (qsizetype stretch = content.size() / 2; stretch > 0; stretch /= 2) {
        for (qsizetype start = 0; start + stretch <= content.size();) {
            const QString shorter = QString(content).remove(start, stretch);
            if (differs(shorter))
                content = shorter;
            else
                start += stretch;
        }
    }
    return content;
}

void print(std::ostream& out, const char* side, const StyledText& styled, qsizetype words) {
    out << side << ": " << words << " words, runs " << runDefect(styled).toStdString() << '\n';
    for (const StyledPiece& piece : piecesOf(styled)) {
        out << "  " << piece;
    }
}

} // namespace

std::string differenceFromOracle(QStringView content) {
    if (!differs(content)) return {};
    const QString smallest = minimised(content.toString());
    std::ostringstream out;
    out << '"' << escapedText(smallest) << "\" (of " << content.size() << " units)\n";
    print(out, "rendered", MarkdownRenderer(fontSize).render(smallest),
          MarkdownRenderer::wordCount(smallest));
    print(out, "expected", RendererOracle(fontSize).render(smallest),
          RendererOracle::wordCount(smallest));
    return out.str();
}

} // namespace tessaline

#include "FuzzFailure.h"
#include "FuzzText.h"

#include "render/markdown/MarkdownRenderer.h"
#include "support/texts/RendererOracle.h"
#include "support/texts/StyledPiece.h"

using namespace tessaline;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = fuzzText(data, size);
    const StyledText rendered = MarkdownRenderer(16).render(text);
    if (!runDefect(rendered).isEmpty()) reportFuzzFailure("runs are not as promised", text);
    if (text.size() > longestCompared) return 0;
    const StyledText expected = RendererOracle(16).render(text);
    if (rendered.text != expected.text || piecesOf(rendered) != piecesOf(expected)) {
        reportFuzzFailure("the renderer differs from the oracle", text);
    }
    return 0;
}

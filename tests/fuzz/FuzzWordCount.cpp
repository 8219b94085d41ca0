#include "FuzzFailure.h"
#include "FuzzText.h"

#include "render/markdown/MarkdownRenderer.h"
#include "support/texts/RendererOracle.h"

using namespace tessaline;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = fuzzText(data, size);
    const qsizetype words = MarkdownRenderer::wordCount(text);
    if (words < 0 || words > (text.size() + 1) / 2) reportFuzzFailure("an impossible count", text);
    if (text.size() <= longestCompared && words != RendererOracle::wordCount(text)) {
        reportFuzzFailure("the counter differs from the oracle", text);
    }
    return 0;
}

#include "FuzzFailure.h"
#include "FuzzText.h"

#include "sources/notes/HtmlToMarkdown.h"
#include "support/texts/HtmlConversionOracle.h"

using namespace tessaline;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString html = fuzzText(data, size);
    const QString converted = convertHtmlToMarkdown(html);
    if (converted.size() > html.size()) reportFuzzFailure("the conversion grew", html);
    if (html.size() <= longestCompared && converted != htmlConversionByIcu(html)) {
        reportFuzzFailure("the conversion differs from the oracle", html);
    }
    return 0;
}

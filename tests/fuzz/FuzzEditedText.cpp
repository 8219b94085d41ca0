#include "FuzzFailure.h"
#include "FuzzText.h"

#include "reading/MarkdownScript.h"
#include "reading/ScriptDifference.h"
#include "render/markdown/WordCount.h"
#include "render/markdown/WordTally.h"

using namespace tessaline;

namespace {

constexpr double fontSize = 16;

} // namespace

/// The first two bytes say where a text is changed, what follows a NUL is what comes there.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const QString input = fuzzText(data + 2, size - 2);
    const qsizetype separator = input.indexOf(QChar(0));
    const QString text = separator < 0 ? input : input.first(separator);
    const QString inserted = separator < 0 ? QString() : input.sliced(separator + 1);
    const qsizetype begin = data[0] * text.size() / 255;
    QString edited = text;
    edited.replace(begin, data[1] % 16, inserted);

    const Script before = markdownScript(text, fontSize);
    const Script script = markdownScript(edited, fontSize, &before);
    if (!difference(script, markdownScript(edited, fontSize)).isEmpty())
        reportFuzzFailure("the changed script is not that of the changed text", edited);
    WordTally words;
    words.count(text);
    if (words.count(edited) != countWords(edited))
        reportFuzzFailure("the changed text has another number of words", edited);
    return 0;
}

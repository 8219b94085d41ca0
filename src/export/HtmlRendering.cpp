#include "export/HtmlRendering.h"

#include "export/ByteSink.h"
#include "export/HtmlStyles.h"
#include "export/HtmlText.h"
#include "reading/Script.h"

#include <cstddef>
#include <utility>

namespace tessaline {

namespace {

QByteArray pageStart(const QString& title, int width, const HtmlStyles& styles) {
    return "<!DOCTYPE html>\n"
           "<html>\n"
           "<head>\n"
           "<meta charset=\"utf-8\">\n"
           "<title>" +
           htmlText(title) +
           "</title>\n"
           "<style>\n"
           "html { background: #000; color-scheme: dark; }\n"
           "body { box-sizing: border-box; width: " +
           QByteArray::number(width) +
           "px; margin: 0 auto; padding: 10px 15px; }\n"
           "p { margin: 0; white-space: pre-wrap; overflow-wrap: anywhere; tab-size: 28px; }\n" +
           styles.sheet() +
           "</style>\n"
           "</head>\n"
           "<body>\n";
}

QByteArray classAttribute(const QByteArray& name) {
    return name.isEmpty() ? QByteArray() : " class=\"" + name + '"';
}

/// Writes the paragraphs of a script as elements.
class PageBody {
public:
    PageBody(const Script& scriptToWrite, const HtmlStyles& classes)
        : script(scriptToWrite), styles(classes) {}

    void append(QByteArray& out, std::size_t index) const {
        const Script::Paragraph& paragraph = script.paragraphs[index];
        if (!paragraph.continuesPrevious)
            out += "<p dir=\"auto\"" + classAttribute(paragraphClass(paragraph)) + '>';
        if (paragraph.length > 0) {
            appendRuns(out, script.content(index));
        } else {
            appendRun(out, paragraph.style, "<br>");
        }
        if (!paragraph.continuesInNext) out += "</p>\n";
    }

private:
    QByteArray paragraphClass(const Script::Paragraph& paragraph) const {
        return paragraph.style < 0 ? QByteArray() : styles.paragraphClass(paragraph.style);
    }

    void appendRuns(QByteArray& out, const StyledFragment& content) const {
        const QStringView text(content.text);
        for (const auto& run : content.runs)
            appendRun(out, run.style, htmlText(text.sliced(run.start, run.length)));
    }

    void appendRun(QByteArray& out, int style, const QByteArray& content) const {
        const QByteArray name = style < 0 ? QByteArray() : styles.textClass(style);
        if (name.isEmpty()) {
            out += content;
        } else {
            out += "<span" + classAttribute(name) + '>' + content + "</span>";
        }
    }

    const Script& script;
    const HtmlStyles& styles;
};

} // namespace

bool writeHtml(StyledText styled, const QString& title, int width, ByteSink& sink) {
    const Script script(std::move(styled));
    const HtmlStyles styles(script.styles);
    const PageBody body(script, styles);
    QByteArray out = pageStart(title, width, styles);
    for (std::size_t index = 0; index < script.paragraphs.size(); ++index) {
        body.append(out, index);
        if (out.size() < ByteSink::pieceSize) continue;
        if (!sink.write(out)) return false;
        out.resize(0); // unlike clear(), keeps the memory
    }
    return sink.write(out + "</body>\n</html>\n");
}

} // namespace tessaline

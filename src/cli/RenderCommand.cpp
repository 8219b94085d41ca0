#include "cli/RenderCommand.h"

#include "cli/Console.h"
#include "cli/DescriptorSink.h"
#include "cli/ExitStatus.h"
#include "cli/TextInput.h"
#include "export/HtmlRendering.h"
#include "export/JsonRendering.h"
#include "export/MemorySink.h"
#include "export/PngRendering.h"
#include "export/ScriptTitle.h"
#include "render/markdown/MarkdownRenderer.h"
#include "settings/WholeFile.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <csignal>
#include <unistd.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The rendering as a picture, drawn without a display.
std::optional<QByteArray> drawPicture(StyledText styled, int width, QString* error) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME"); // a desktop's theme may insist on a display
    // What the desktop lacks is of no concern to who asked for a picture.
    QLoggingCategory::setFilterRules(u"default.warning=false"_s);
    int argumentCount = 1;
    char name[] = "tessaline";
    char* arguments[] = {name, nullptr};
    const QGuiApplication application(argumentCount, arguments);
    return pngOf(std::move(styled), width, error);
}

/// Writes the rendering to the sink. Returns why there is no rendering, if there is none; failures
/// of the sink are the sink's to tell.
QString render(const RenderRequest& request, const QString& content, ByteSink& sink) {
    StyledText styled = MarkdownRenderer(request.fontSize).render(content);
    switch (request.format) {
    case RenderFormat::json:
        writeJson(styled, MarkdownRenderer::wordCount(content), sink);
        return {};
    case RenderFormat::html:
        writeHtml(std::move(styled), scriptTitle(content), request.width, sink);
        return {};
    case RenderFormat::png:
        break;
    }
    QString error;
    if (const auto picture = drawPicture(std::move(styled), request.width, &error))
        sink.write(*picture);
    return error;
}

int renderToStandardOutput(const RenderRequest& request, const QString& content) {
    DescriptorSink sink(STDOUT_FILENO);
    const QString error = render(request, content, sink);
    if (!sink.error().isEmpty()) return reportOutputFailure(sink.error());
    return error.isEmpty() ? ExitStatus::success : reportFailure(error);
}

int renderToFile(const RenderRequest& request, const QString& content) {
    MemorySink sink;
    QString error = render(request, content, sink);
    if (error.isEmpty()) {
        if (writeWholeFile(request.output, sink.bytes, &error)) return ExitStatus::success;
        error = u"cannot write %1: %2"_s.arg(request.output, error);
    }
    return reportFailure(error);
}

} // namespace

int runRender(const RenderRequest& request) {
    std::signal(SIGPIPE, SIG_IGN); // a reader that has gone is an error like any other
    QString error;
    const auto content = readTextInput(request.input, &error);
    if (!content) {
        reportError(error);
        return ExitStatus::usage;
    }
    return request.output.isEmpty() ? renderToStandardOutput(request, *content)
                                    : renderToFile(request, *content);
}

} // namespace tessaline

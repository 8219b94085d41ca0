#include "reading/ContentRenderer.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "render/markdown/MarkdownRenderer.h"

#include <memory>
#include <utility>

namespace tessaline {

namespace {

constexpr double fontSize = 16.0;

RenderedContent rendered(const QString& markdown) {
    // Counting takes a copy of the text, which is gone before rendering takes as much.
    const qsizetype wordCount = MarkdownRenderer::wordCount(markdown);
    return {Script(MarkdownRenderer(fontSize).render(markdown)), wordCount};
}

} // namespace

ContentRenderer::ContentRenderer(TaskRunner& taskRunner, MainQueue& mainQueue)
    : tasks(taskRunner), queue(mainQueue) {}

void ContentRenderer::cancel() {
    request.reset();
}

void ContentRenderer::render(const QString& markdown, Handler done) {
    request.emplace();
    if (markdown.size() <= mostRenderedAtOnce) return done(rendered(markdown));

    tasks.run([markdown, deliver = request->guard(std::move(done)), &mainQueue = queue] {
        if (!deliver.isAlive()) return;
        auto content = std::make_shared<RenderedContent>(rendered(markdown));
        mainQueue.post([content, deliver] { deliver(std::move(*content)); });
    });
}

} // namespace tessaline

#include "reading/ContentRenderer.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "reading/MarkdownScript.h"
#include "render/markdown/MarkdownRenderer.h"

#include <memory>
#include <utility>

namespace tessaline {

namespace {

constexpr double fontSize = 16.0;

RenderedContent rendered(const QString& markdown, const Script* before) {
    return {std::make_shared<const Script>(markdownScript(markdown, fontSize, before)),
            MarkdownRenderer::wordCount(markdown)};
}

} // namespace

ContentRenderer::ContentRenderer(TaskRunner& taskRunner, MainQueue& mainQueue)
    : tasks(taskRunner), queue(mainQueue) {}

void ContentRenderer::cancel() {
    request.reset();
    last.reset();
}

void ContentRenderer::render(const QString& markdown, Handler done) {
    request.emplace();
    const auto deliver = request->guard([this, done = std::move(done)](RenderedContent content) {
        last = content.script;
        done(std::move(content));
    });
    if (markdown.size() <= mostRenderedAtOnce) return deliver(rendered(markdown, last.get()));

    tasks.run([markdown, deliver, before = last, &mainQueue = queue]() mutable {
        if (!deliver.isAlive()) return;
        auto content = std::make_shared<RenderedContent>(rendered(markdown, before.get()));
        before.reset();
        mainQueue.post([content, deliver] { deliver(std::move(*content)); });
    });
}

} // namespace tessaline

#include "prompter/ContentRenderer.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "render/markdown/MarkdownRenderer.h"

#include <utility>

namespace tessaline {

namespace {

RenderedContent rendered(const QString& markdown, double fontSize) {
    // Counting takes a copy of the text, which is gone before rendering takes as much.
    const qsizetype wordCount = MarkdownRenderer::wordCount(markdown);
    return {Script(MarkdownRenderer(fontSize).render(markdown)), wordCount};
}

} // namespace

ContentRenderer::ContentRenderer(TaskRunner& taskRunner, MainQueue& mainQueue)
    : tasks(taskRunner), queue(mainQueue) {}

void ContentRenderer::cancel() {
    current.reset();
}

void ContentRenderer::render(const QString& markdown, double fontSize, Handler done) {
    current = std::make_shared<const int>(0);
    if (markdown.size() <= mostRenderedAtOnce) return done(rendered(markdown, fontSize));

    const std::weak_ptr<const int> wanted = current;
    tasks.run([wanted, markdown, fontSize, done = std::move(done), &mainQueue = queue] {
        if (wanted.expired()) return;
        auto content = std::make_shared<RenderedContent>(rendered(markdown, fontSize));
        mainQueue.post([wanted, content, done] {
            if (!wanted.expired()) done(std::move(*content));
        });
    });
}

} // namespace tessaline

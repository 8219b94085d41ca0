#include "reading/ContentRenderer.h"

#include "platform/RunThenPost.h"
#include "reading/MarkdownScript.h"

#include <memory>
#include <utility>

namespace tessaline {

namespace {

constexpr double fontSize = 16.0;

RenderedContent rendered(const QString& markdown, const Script* before, WordTally& words) {
    return {std::make_shared<const Script>(markdownScript(markdown, fontSize, before)),
            words.count(markdown)};
}

/// What a task in the background takes along and brings back.
struct Rendering {
    std::shared_ptr<const Script> before;
    WordTally words;
    RenderedContent content;
};

} // namespace

ContentRenderer::ContentRenderer(TaskRunner& taskRunner, MainQueue& mainQueue)
    : tasks(taskRunner), queue(mainQueue) {}

void ContentRenderer::cancel() {
    request.reset();
    last.reset();
    words = {};
}

void ContentRenderer::render(const QString& markdown, Handler done) {
    request.emplace();
    const auto deliver = request->guard([this, done = std::move(done)](Rendering task) {
        last = task.content.script;
        words = std::move(task.words);
        done(std::move(task.content));
    });
    if (markdown.size() <= mostRenderedAtOnce) {
        RenderedContent content = rendered(markdown, last.get(), words);
        return deliver(Rendering{nullptr, std::move(words), std::move(content)});
    }

    runThenPost(
        tasks, queue,
        [markdown, task = Rendering{last, words, {}}]() mutable {
            task.content = rendered(markdown, task.before.get(), task.words);
            task.before.reset();
            return std::move(task);
        },
        deliver);
}

} // namespace tessaline

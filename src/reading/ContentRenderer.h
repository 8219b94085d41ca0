#pragma once

#include "platform/Lifetime.h"
#include "reading/Script.h"
#include "render/markdown/WordTally.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace tessaline {

class MainQueue;
class TaskRunner;

/// A text made ready for the prompter.
struct RenderedContent {
    std::shared_ptr<const Script> script = std::make_shared<const Script>();
    qsizetype wordCount = 0;
};

/// Renders texts for the prompter: short ones at once, long ones in the background, so that the
/// window answers meanwhile.
class ContentRenderer {
public:
    using Handler = std::function<void(RenderedContent)>;

    /// Texts of more UTF-16 units than this are rendered in the background.
    static constexpr qsizetype mostRenderedAtOnce = 1'000'000;

    /// Borrows both.
    ContentRenderer(TaskRunner& tasks, MainQueue& queue);

    /// Renders Markdown, counts its words, and calls `done` with the result on the main thread,
    /// unless something else has been asked for in the meantime. All texts have fonts for the same
    /// body size, so that what two of them share is the same; views resize them.
    void render(const QString& markdown, Handler done);

    /// Whatever is being rendered is not wanted any more.
    void cancel();

private:
    TaskRunner& tasks;
    MainQueue& queue;
    std::optional<Lifetime> request; ///< until another text is asked for

    /// Of the last text, which the next one is likely to be a version of.
    std::shared_ptr<const Script> last;
    WordTally words;
};

} // namespace tessaline

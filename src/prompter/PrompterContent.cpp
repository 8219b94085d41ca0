#include "prompter/PrompterContent.h"

#include "prompter/Placeholder.h"
#include "prompter/view/ScriptView.h"
#include "reading/ReadingSession.h"
#include "render/markdown/MarkdownRenderer.h"
#include "settings/AppSettings.h"

#include <memory>
#include <utility>

namespace tessaline {

PrompterContent::PrompterContent(const AppSettings& shared, ReadingSession& shown,
                                 ScriptView& shownIn, TaskRunner& tasks, MainQueue& queue,
                                 std::function<void()> afterwards)
    : settings(shared)
    , session(shown)
    , view(shownIn)
    , onShown(std::move(afterwards))
    , renderer(tasks, queue) {}

bool PrompterContent::isHint() const {
    return lastText == placeholderContent;
}

void PrompterContent::render() {
    isHint() ? renderHint() : renderMarkdown();
}

void PrompterContent::renderMarkdown() {
    view.setFontSize(settings.fontSize());
    renderer.render(lastText, [this](RenderedContent rendered) { show(std::move(rendered)); });
}

void PrompterContent::renderHint() {
    renderer.cancel();
    show({std::make_shared<const Script>(placeholderText(view.height())),
          MarkdownRenderer::wordCount(placeholderContent)});
}

void PrompterContent::show(RenderedContent content) {
    session.setContent(std::move(content));
    onShown();
}

} // namespace tessaline

#include "reading/ContentRenderer.h"

#include "support/FakeMainQueue.h"
#include "support/FakeTaskRunner.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class ContentRendererTest : public testing::Test {
protected:
    void render(const QString& markdown) {
        renderer.render(markdown, [this](const RenderedContent& content) {
            shown.push_back(content.script->text(0, 5));
            words = content.wordCount;
        });
    }

    FakeTaskRunner tasks;
    FakeMainQueue queue;
    ContentRenderer renderer{tasks, queue};
    std::vector<QString> shown;
    qsizetype words = -1;
    const QString longText =
        u"long text\n"_s.repeated(ContentRenderer::mostRenderedAtOnce / 10 + 1);
};

TEST_F(ContentRendererTest, RendersShortTextsAtOnce) {
    render(u"**short** text"_s);
    EXPECT_EQ(shown, std::vector<QString>{u"short"_s});
    EXPECT_EQ(words, 2);
    EXPECT_EQ(tasks.pending(), 0u);
}

TEST_F(ContentRendererTest, RendersLongTextsInTheBackground) {
    render(longText);
    EXPECT_TRUE(shown.empty());
    tasks.runAll();
    EXPECT_TRUE(shown.empty());
    queue.runAll();
    EXPECT_EQ(shown, std::vector<QString>{u"long "_s});
    EXPECT_EQ(words, 2 * (ContentRenderer::mostRenderedAtOnce / 10 + 1));
}

TEST_F(ContentRendererTest, ShowsOnlyTheNewestText) {
    render(longText);
    tasks.runAll();
    render(u"newer"_s);
    queue.runAll();
    EXPECT_EQ(shown, std::vector<QString>{u"newer"_s});
}

TEST_F(ContentRendererTest, DropsWhatIsNotWantedAnyMore) {
    render(longText);
    renderer.cancel();
    tasks.runAll();
    queue.runAll();
    EXPECT_TRUE(shown.empty());
}

TEST_F(ContentRendererTest, MayGoAwayWhileATextIsBeingRendered) {
    auto passing = std::make_unique<ContentRenderer>(tasks, queue);
    passing->render(longText, [this](const RenderedContent&) { shown.push_back(u"late"_s); });
    passing.reset();
    tasks.runAll();
    queue.runAll();
    EXPECT_TRUE(shown.empty());
}

} // namespace
} // namespace tessaline

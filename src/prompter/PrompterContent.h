#pragma once

#include "reading/ContentRenderer.h"

#include <QString>

#include <functional>

namespace tessaline {

class AppSettings;
class MainQueue;
class ReadingSession;
class ScriptView;
class TaskRunner;

/// The text that the prompter has, as it came; makes a script of it for the session. The hint is a
/// text that is set for the view's height.
class PrompterContent {
public:
    /// Borrows everything. `shown` is called whenever the session has another script.
    PrompterContent(const AppSettings& settings, ReadingSession& session, ScriptView& view,
                    TaskRunner& tasks, MainQueue& queue, std::function<void()> shown);

    /// Keeps another text until it is rendered.
    void take(const QString& text) { lastText = text; }

    /// Shows the last text with the settings as they are now.
    void render();

    const QString& text() const { return lastText; }
    bool isEmpty() const { return lastText.isEmpty(); }
    bool isHint() const;

private:
    void renderMarkdown();
    void renderHint();
    void show(RenderedContent content);

    const AppSettings& settings;
    ReadingSession& session;
    ScriptView& view;
    const std::function<void()> onShown;
    QString lastText;
    ContentRenderer renderer;
};

} // namespace tessaline

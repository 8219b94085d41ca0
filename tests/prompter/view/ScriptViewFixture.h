#pragma once

#include "prompter/view/ScriptView.h"
#include "reading/ReadingSession.h"
#include "render/markdown/MarkdownRenderer.h"
#include "settings/PersistedSettings.h"

#include <QCoreApplication>
#include <QString>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace tessaline {

/// A view of 430 × 202 points, as in a prompter of the usual size.
class ScriptViewFixture : public testing::Test {
protected:
    ScriptViewFixture() {
        view.resize(430, 202);
        view.show();
    }

    void setScript(Script script) { session->setContent({std::move(script)}); }

    /// Shows Markdown and lays it out completely.
    void show(const QString& markdown) {
        setScript(Script(MarkdownRenderer(16).render(markdown)));
        view.completeLayout();
    }

    /// A text of so many numbered lines.
    static QString lines(int count) {
        QString text;
        for (int i = 0; i < count; ++i)
            text += QStringLiteral("line %1\n").arg(i);
        return text;
    }

    /// The text of the line at the view's top edge.
    QString topLine() {
        const qsizetype offset = view.offsetAt({20, 1});
        const QString& text = view.script().styled.text;
        const TextRange range = unitAround(text, offset, TextSelection::Unit::paragraph);
        return text.mid(range.begin, range.length());
    }

    PersistedSettings settings;
    const std::shared_ptr<ReadingSession> session = std::make_shared<ReadingSession>(settings);
    ScriptView view{session};
};

} // namespace tessaline

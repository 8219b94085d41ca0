#pragma once

#include "prompter/view/ScriptView.h"
#include "reading/MarkdownScript.h"
#include "reading/ReadingSession.h"
#include "settings/PersistedSettings.h"
#include "settings/ReadingOptions.h"

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

    void setScript(Script script) {
        session->setContent({std::make_shared<const Script>(std::move(script))});
    }

    /// Shows Markdown and lays it out completely.
    void show(const QString& markdown) {
        setScript(markdownScript(markdown, 16));
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
        const TextRange range = unitAround(view.script(), offset, TextSelection::Unit::paragraph);
        return view.script().text(range.begin, range.end);
    }

    PersistedSettings settings;
    ReadingOptions options;
    const std::shared_ptr<ReadingSession> session =
        std::make_shared<ReadingSession>(settings, options);
    ScriptView view{session};
};

} // namespace tessaline

#pragma once

#include "reading/ScriptSource.h"
#include "render/markdown/DocumentRenderer.h"

#include <QString>

#include <map>
#include <memory>
#include <mutex>

namespace tessaline {

/// The source of a script that was made of Markdown: renders its lines when they are asked for.
class MarkdownText final : public ScriptSource {
public:
    /// The renderer has rendered each line once, so that it knows all styles.
    MarkdownText(QString markdown, const DocumentRenderer& renderer);

    StyledFragment paragraph(const ScriptParagraph& paragraph) const override;
    std::optional<QStringView> originOf(const ScriptParagraph& paragraph) const override;

    const QString& markdown() const { return content; }
    DocumentRenderer rendererCopy() const;

    /// Lines that are cut into pieces are rendered once and kept: each piece would take the whole
    /// line's time.
    struct LongLine {
        int start = 0; ///< in the script's text
        std::shared_ptr<const StyledFragment> line;
    };
    std::map<int, LongLine> longLines; ///< by their beginning in the Markdown

private:
    QString content;
    mutable std::mutex mutex;
    mutable DocumentRenderer renderer;
};

/// Renders a line as it stands in the script: without carriage returns. The result is valid until
/// the next one.
const StyledText& renderLine(DocumentRenderer& renderer, QStringView line, bool isCode);

/// A rendered line for keeps.
StyledFragment copyOf(const StyledText& line);

/// The line of a text that begins at an offset, without its newline.
QStringView lineAt(QStringView text, qsizetype begin);

} // namespace tessaline

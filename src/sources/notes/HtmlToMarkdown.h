#pragma once

#include <QString>

namespace tessaline {

/// Turns the HTML in which Apple Notes keeps a note into Markdown: headings, emphasis, list items
/// and line breaks are translated, all other tags dropped, and the common entities decoded. Takes
/// time linear in the input's length, whatever the input. Any thread.
QString convertHtmlToMarkdown(const QString& html);

} // namespace tessaline

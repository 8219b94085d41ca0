#pragma once

#include "reading/MarkdownScript.h"

namespace tessaline {

/// The script of a Markdown text in the usual size.
inline Script scriptOf(const QString& markdown) {
    return markdownScript(markdown, 16);
}

} // namespace tessaline

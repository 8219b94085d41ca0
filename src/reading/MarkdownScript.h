#pragma once

#include "reading/Script.h"

#include <QString>

namespace tessaline {

/// The script of a Markdown text, in fonts for this body size. It keeps the Markdown and renders a
/// line whenever it is asked for. What `before` was made of is compared with it, and only what lies
/// between their common beginning and end is looked at. Any thread.
Script markdownScript(const QString& markdown, double fontSize, const Script* before = nullptr);

} // namespace tessaline

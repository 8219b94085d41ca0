#pragma once

#include "render/StyledText.h"

namespace tessaline {

class ByteSink;

/// Writes a styled text with its word count as JSON, run by run. Returns false when the sink fails.
/// Needs no QGuiApplication; any thread.
bool writeJson(const StyledText& styled, qsizetype wordCount, ByteSink& sink);

} // namespace tessaline

#pragma once

#include "render/StyledText.h"

namespace tessaline {

class ByteSink;

/// Writes a styled text as one self-contained HTML page: a column of this width in points, margins
/// included, on black. Returns false when the sink fails. Needs no QGuiApplication; any thread.
bool writeHtml(StyledText styled, const QString& title, int width, ByteSink& sink);

} // namespace tessaline

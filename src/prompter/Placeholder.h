#pragma once

#include "render/StyledText.h"

#include <QStringView>

namespace tessaline {

/// The content that stands for "nothing to show yet"; it is never rendered as Markdown.
inline constexpr QStringView placeholderContent = u"PLACEHOLDER";

/// The hint to paste that is shown in its place, centred in a view of this height in points.
StyledText placeholderText(double visibleHeight);

} // namespace tessaline

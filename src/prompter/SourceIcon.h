#pragma once

#include "settings/SourceType.h"

#include <QColor>
#include <QIcon>

namespace tessaline {

/// The colour in which a source is named in the prompter.
QColor sourceColor(SourceType source);

/// A small drawing that stands for a source, in its colour.
QIcon sourceIcon(SourceType source);

} // namespace tessaline

#pragma once

#include "prompter/view/PixelRows.h"
#include "prompter/view/StripCache.h"

namespace tessaline {

/// Makes a frame of the rows of strips, at any fraction of a row: the one that begins so many rows
/// below the column's top. It looks as the strips do. Only what is not ground is mixed; most of a
/// script is. Allocates nothing.
void composeFrame(StripCache& strips, double firstRow, const FrameLook& look,
                  const PixelRows& frame);

} // namespace tessaline

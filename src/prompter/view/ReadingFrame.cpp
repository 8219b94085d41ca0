#include "prompter/view/ReadingFrame.h"

#include "settings/ReadingOptions.h"

namespace tessaline {

ReadingFrame ReadingFrame::of(const ReadingOptions& options) {
    return {.isActive = options.guide != ReadingGuide::none || options.pace != PaceMode::speed,
            .eyeLine = options.eyeLine,
            .guide = options.guide,
            .guideLines = options.guideLines,
            .glides = options.glide};
}

} // namespace tessaline

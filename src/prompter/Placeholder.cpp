#include "prompter/Placeholder.h"

#include "platform/PlatformTexts.h"
#include "render/markdown/StyledTextBuilder.h"

#include <algorithm>

namespace tessaline {

namespace {

constexpr double hintHeight = 60.0;
constexpr double lineSpacing = 8.0;

TextAttributes hintAttributes(double size, TextFont::Weight weight, double alpha,
                              double spacingBefore) {
    return {.font = TextFont{TextFont::Family::system, weight, false, size},
            .foreground = TextColor{TextColor::Base::white, alpha},
            .paragraph = ParagraphStyle{.spacingBefore = spacingBefore,
                                        .spacingAfter = lineSpacing,
                                        .alignment = ParagraphStyle::Alignment::center}};
}

} // namespace

StyledText placeholderText(double visibleHeight) {
    const double spacingBefore = std::max((visibleHeight - hintHeight) / 2, 0.0);
    StyledTextBuilder builder;
    builder.append(
        platformTexts().pasteHint + u'\n',
        builder.styleIndex(hintAttributes(28, TextFont::Weight::medium, 0.5, spacingBefore)));
    builder.append(u"to paste",
                   builder.styleIndex(hintAttributes(14, TextFont::Weight::regular, 0.3, 0.0)));
    return builder.take();
}

} // namespace tessaline

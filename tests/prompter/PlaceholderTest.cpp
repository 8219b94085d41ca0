#include "prompter/Placeholder.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Placeholder, IsAHintInTwoSizes) {
    const StyledText hint = placeholderText(200);
    EXPECT_EQ(hint.text, u"Ctrl+V\nto paste"_s);
    ASSERT_EQ(hint.runs.size(), 2u);
    const TextAttributes& keys = hint.attributes(hint.runs[0]);
    const TextAttributes& words = hint.attributes(hint.runs[1]);
    EXPECT_EQ(keys.font, (TextFont{TextFont::Family::system, TextFont::Weight::medium, false, 28}));
    EXPECT_EQ(keys.foreground, (TextColor{TextColor::Base::white, 0.5}));
    EXPECT_EQ(words.font,
              (TextFont{TextFont::Family::system, TextFont::Weight::regular, false, 14}));
    EXPECT_EQ(words.foreground, (TextColor{TextColor::Base::white, 0.3}));
}

TEST(Placeholder, IsCentredInTheView) {
    const auto spacingBefore = [](double visibleHeight) {
        const StyledText hint = placeholderText(visibleHeight);
        return hint.attributes(hint.runs[0]).paragraph->spacingBefore;
    };
    EXPECT_EQ(spacingBefore(200), 70);
    EXPECT_EQ(spacingBefore(60), 0);
    EXPECT_EQ(spacingBefore(10), 0);
    const StyledText hint = placeholderText(200);
    for (const auto& run : hint.runs) {
        EXPECT_EQ(hint.attributes(run).paragraph->alignment, ParagraphStyle::Alignment::center);
        EXPECT_EQ(hint.attributes(run).paragraph->spacingAfter, 8);
    }
}

} // namespace
} // namespace tessaline

#include "platform/linux/x11/PanelStrips.h"

#include "support/PrintQt.h"

#include <gmock/gmock.h>

#include <limits>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace tessaline {
namespace {

using Numbers = std::vector<std::uint32_t>;

constexpr QSize desktop(2304, 800);
constexpr QRect notebook(0, 0, 1280, 800);
constexpr QRect projector(1280, 32, 1024, 768);
constexpr std::uint32_t huge = std::numeric_limits<std::uint32_t>::max();

QMargins reserved(const Numbers& numbers, const QRect& monitor, QSize size = desktop) {
    return reservedBy(panelStripsFrom(numbers, size), monitor);
}

TEST(PanelStrips, AreAtTheEdgeThatTheNumbersName) {
    EXPECT_THAT(panelStripsFrom(Numbers{1, 2, 3, 4}, desktop),
                ElementsAre(PanelStrip{Qt::LeftEdge, {0, 0, 1, 800}},
                            PanelStrip{Qt::RightEdge, {2302, 0, 2, 800}},
                            PanelStrip{Qt::TopEdge, {0, 0, 2304, 3}},
                            PanelStrip{Qt::BottomEdge, {0, 796, 2304, 4}}));
    EXPECT_THAT(panelStripsFrom(Numbers{1, 2, 3, 4, 10, 19, 20, 29, 30, 39, 40, 49}, desktop),
                ElementsAre(PanelStrip{Qt::LeftEdge, {0, 10, 1, 10}},
                            PanelStrip{Qt::RightEdge, {2302, 20, 2, 10}},
                            PanelStrip{Qt::TopEdge, {30, 0, 10, 3}},
                            PanelStrip{Qt::BottomEdge, {40, 796, 10, 4}}));
}

TEST(PanelStrips, AreNoneForOtherProperties) {
    EXPECT_THAT(panelStripsFrom(Numbers{}, desktop), IsEmpty());
    EXPECT_THAT(panelStripsFrom(Numbers{1, 2, 3}, desktop), IsEmpty());
    EXPECT_THAT(panelStripsFrom(Numbers(11, 5), desktop), IsEmpty());
    EXPECT_THAT(panelStripsFrom(Numbers(12, 0), desktop), IsEmpty());
}

TEST(PanelStrips, StayOnTheDesktopWhateverTheNumbersSay) {
    EXPECT_THAT(panelStripsFrom(Numbers{0, 0, huge, 0, 0, 0, 0, 0, huge, huge, 0, 0}, desktop),
                IsEmpty());
    EXPECT_THAT(panelStripsFrom(Numbers{0, 0, huge, 0, 0, 0, 0, 0, 5, huge, 0, 0}, desktop),
                ElementsAre(PanelStrip{Qt::TopEdge, {5, 0, 2299, 800}}));
    EXPECT_THAT(panelStripsFrom(Numbers{0, 0, 10, 0, 0, 0, 0, 0, 50, 20, 0, 0}, desktop),
                IsEmpty());
}

TEST(PanelStrips, TakeOfTheMonitorThatTheyRunAlong) {
    const Numbers onNotebook{0, 0, 40, 0, 0, 0, 0, 0, 0, 1279, 0, 0};
    EXPECT_EQ(reserved(onNotebook, notebook), QMargins(0, 40, 0, 0));
    EXPECT_EQ(reserved(onNotebook, projector), QMargins());
}

TEST(PanelStrips, CountFromTheEdgeOfTheWholeDesktop) {
    const Numbers onProjector{0, 0, 72, 0, 0, 0, 0, 0, 1280, 2303, 0, 0};
    EXPECT_EQ(reserved(onProjector, projector), QMargins(0, 40, 0, 0));
    EXPECT_EQ(reserved(onProjector, notebook), QMargins());
}

TEST(PanelStrips, TakeNothingOfAMonitorBetweenPanelAndEdge) {
    constexpr QSize tall(1280, 1600);
    constexpr QRect below(0, 800, 1280, 800);
    const Numbers onLowerOne{0, 0, 830, 0, 0, 0, 0, 0, 0, 1279, 0, 0};
    EXPECT_EQ(reserved(onLowerOne, below, tall), QMargins(0, 30, 0, 0));
    EXPECT_EQ(reserved(onLowerOne, notebook, tall), QMargins());
    const Numbers leftOfProjector{1330, 0, 0, 0, 0, 799, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(reserved(leftOfProjector, projector), QMargins(50, 0, 0, 0));
    EXPECT_EQ(reserved(leftOfProjector, notebook), QMargins());
}

TEST(PanelStrips, OfOneEdgeDoNotAddUp) {
    auto strips = panelStripsFrom(Numbers{0, 0, 40, 24}, desktop);
    strips.push_back({Qt::TopEdge, {0, 0, 100, 30}});
    EXPECT_EQ(reservedBy(strips, notebook), QMargins(0, 40, 0, 24));
}

} // namespace
} // namespace tessaline

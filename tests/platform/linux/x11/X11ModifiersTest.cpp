#include "platform/linux/x11/X11Modifiers.h"

#include <gmock/gmock.h>

#include <set>

namespace tessaline {

namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

TEST(X11Modifiers, AreOurFlagsWithoutLockKeys) {
    EXPECT_EQ(modifierFlagsFromX11(0), 0U);
    EXPECT_EQ(modifierFlagsFromX11(X11Modifier::ignored), 0U);
    EXPECT_EQ(modifierFlagsFromX11(0xff),
              Modifier::shift | Modifier::control | Modifier::option | Modifier::command);
    EXPECT_EQ(modifierFlagsFromX11(X11Modifier::super | X11Modifier::capsLock), Modifier::command);
}

TEST(X11Modifiers, ComeFromOurFlags) {
    for (const std::uint32_t bit :
         {X11Modifier::shift, X11Modifier::control, X11Modifier::alt, X11Modifier::super})
        EXPECT_EQ(x11ModifiersFrom(modifierFlagsFromX11(bit)), bit);
}

TEST(X11Modifiers, CombineEverySubset) {
    EXPECT_THAT(modifierCombinations(4, 0), ElementsAre(4U));
    EXPECT_THAT(modifierCombinations(4, 2 | 16), UnorderedElementsAre(4U, 6U, 20U, 22U));
}

TEST(X11Modifiers, CombineControlWithAllOthersWithoutRepetition) {
    const auto all = modifierCombinations(X11Modifier::control, 0xff & ~X11Modifier::control);
    EXPECT_THAT(std::set(all.begin(), all.end()), SizeIs(128));
    EXPECT_THAT(all, SizeIs(128));
    EXPECT_THAT(all, Each(::testing::Truly([](std::uint32_t combination) {
                    return (combination & X11Modifier::control) != 0 && combination <= 0xff;
                })));
}

} // namespace

} // namespace tessaline

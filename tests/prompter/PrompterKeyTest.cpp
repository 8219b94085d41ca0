#include "prompter/PrompterKey.h"
#include "support/CaseName.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace tessaline {
namespace {

using Deed = PrompterKey::Deed;

std::optional<Deed> deedOf(Qt::Key key, Qt::KeyboardModifiers modifiers = {},
                           bool repeated = false) {
    const auto found = PrompterKey::of(QKeyEvent(QEvent::KeyPress, key, modifiers, {}, repeated));
    return found ? std::optional(found->deed) : std::nullopt;
}

struct KeyCase {
    std::string name;
    Qt::Key key;
    Deed deed;
    bool repeats = false;
};

class PrompterKeys : public testing::TestWithParam<KeyCase> {};

TEST_P(PrompterKeys, HaveTheirDeedWithShiftAndWithoutButNoOtherModifier) {
    const auto& [name, key, deed, repeats] = GetParam();
    EXPECT_EQ(deedOf(key), deed);
    EXPECT_EQ(deedOf(key, Qt::ShiftModifier), deed);
    EXPECT_EQ(deedOf(key, Qt::KeypadModifier), deed);
    EXPECT_EQ(deedOf(key, Qt::ControlModifier), std::nullopt);
    EXPECT_EQ(deedOf(key, Qt::AltModifier), std::nullopt);
    EXPECT_EQ(deedOf(key, Qt::MetaModifier | Qt::ShiftModifier), std::nullopt);
    EXPECT_EQ(deedOf(key, {}, true), repeats ? std::optional(deed) : std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    , PrompterKeys,
    testing::Values(KeyCase{"Space", Qt::Key_Space, Deed::startOrStop},
                    KeyCase{"F5", Qt::Key_F5, Deed::startOrStop},
                    KeyCase{"Plus", Qt::Key_Plus, Deed::faster, true},
                    KeyCase{"PlusWithoutShift", Qt::Key_Equal, Deed::faster, true},
                    KeyCase{"Minus", Qt::Key_Minus, Deed::slower, true},
                    KeyCase{"B", Qt::Key_B, Deed::black},
                    KeyCase{"Period", Qt::Key_Period, Deed::black},
                    KeyCase{"M", Qt::Key_M, Deed::mirror}, KeyCase{"G", Qt::Key_G, Deed::guide},
                    KeyCase{"F1", Qt::Key_F1, Deed::keys},
                    KeyCase{"QuestionMark", Qt::Key_Question, Deed::keys}),
    byMember<&KeyCase::name>);

TEST(PrompterKey, GoesToTheFirstNineHeadingsByDigits) {
    for (int digit = 1; digit <= 9; ++digit) {
        const auto key =
            PrompterKey::of(QKeyEvent(QEvent::KeyPress, Qt::Key_0 + digit, Qt::NoModifier));
        ASSERT_TRUE(key) << digit;
        EXPECT_EQ(key->deed, Deed::toHeading);
        EXPECT_EQ(key->heading, digit);
    }
    EXPECT_EQ(deedOf(Qt::Key_0), std::nullopt);
    EXPECT_EQ(deedOf(Qt::Key_1, Qt::ControlModifier), std::nullopt);
    EXPECT_EQ(deedOf(Qt::Key_1, {}, true), std::nullopt);
}

TEST(PrompterKey, LeavesAllOthersAlone) {
    for (const auto key : {Qt::Key_X, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape, Qt::Key_F2})
        EXPECT_EQ(deedOf(key), std::nullopt) << key;
}

} // namespace
} // namespace tessaline

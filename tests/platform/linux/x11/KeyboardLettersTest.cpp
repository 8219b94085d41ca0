#include "platform/linux/x11/KeyboardLetters.h"

#include "support/PrintQt.h"

#include <gmock/gmock.h>

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t fifthLetterKey = 28; // T on an American keyboard
constexpr std::uint32_t dvorakTKey = 45;
constexpr std::uint32_t shiftKey = 50;
constexpr std::uint32_t digitOneKey = 10;

TEST(KeyboardLetters, AreThoseOfTheLayout) {
    const auto letters = KeyboardLetters::fromLayouts("us,us", ",dvorak");
    EXPECT_EQ(letters.letter(fifthLetterKey, 0), u"t"_s);
    EXPECT_THAT(letters.keysFor(u"t"_s, 0), ElementsAre(fifthLetterKey));
    EXPECT_THAT(letters.keysFor(u"t"_s, 1), ElementsAre(dvorakTKey));
}

TEST(KeyboardLetters, AreLatinOnesOfAnotherLayoutWhereThereAreNone) {
    const auto letters = KeyboardLetters::fromLayouts("ru,us", "");
    EXPECT_EQ(letters.letter(fifthLetterKey, 0), u"t"_s);
    EXPECT_THAT(letters.keysFor(u"t"_s, 0), ElementsAre(fifthLetterKey));
}

TEST(KeyboardLetters, AreTheirOwnWhereNoLayoutIsLatin) {
    const auto letters = KeyboardLetters::fromLayouts("ru", "");
    EXPECT_EQ(letters.letter(fifthLetterKey, 0), u"\u0435"_s);
    EXPECT_THAT(letters.keysFor(u"t"_s, 0), IsEmpty());
}

TEST(KeyboardLetters, AreNoneForKeysThatTypeNothing) {
    const auto letters = KeyboardLetters::fromLayouts("us", "");
    EXPECT_EQ(letters.letter(shiftKey, 0), QString());
    EXPECT_EQ(letters.letter(100000, 0), QString());
    EXPECT_EQ(letters.letter(digitOneKey, 0), u"1"_s);
}

TEST(KeyboardLetters, AreNoneForAKeyboardThatIsUnknown) {
    const auto letters = KeyboardLetters::fromLayouts("no such layout", "");
    EXPECT_EQ(letters.letter(fifthLetterKey, 0), QString());
    EXPECT_THAT(letters.keysFor(u"t"_s, 0), IsEmpty());
}

} // namespace

} // namespace tessaline

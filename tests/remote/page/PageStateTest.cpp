#include "remote/page/PageState.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

TEST(PageState, IsToldOnOneLine) {
    PageState state;
    state.moves = true;
    state.isSeen = true;
    state.pace = PaceMode::words;
    state.paceText = u"150 \"words\""_s;
    state.secondsLeft = 90;
    state.scriptVersion = 2;
    state.paragraphs = 40;
    state.paragraph = 7;
    state.fraction = 1.0 / 3.0;
    EXPECT_EQ(
        messageOf(state),
        R"({"moves":true,"seen":true,"black":false,"pace":"words","paceText":"150 \"words\"",)"
        R"("secondsLeft":90,"script":2,"paragraphs":40,"paragraph":7,"fraction":0.333})");
    state.secondsLeft.reset();
    EXPECT_TRUE(messageOf(state).contains("\"secondsLeft\":null"));
}

} // namespace tessaline

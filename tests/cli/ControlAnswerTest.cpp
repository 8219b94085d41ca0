#include "cli/ControlAnswer.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

PrompterStatus aStatus() {
    return {.version = u"1.2.3"_s,
            .visible = true,
            .collapsed = false,
            .source = SourceType::obsidian,
            .words = 2368,
            .time = u"12m30s"_s,
            .scrollPosition = 12.34,
            .maximumScrollPosition = 400.0,
            .speed = 2.25,
            .rate = ScrollRate::fast,
            .autoScroll = true,
            .frameRate = 60};
}

QString answer(ControlCommand command) {
    return controlAnswer({command, {}}, aStatus());
}

TEST(ControlAnswer, TellsWhatTheCommandIsAbout) {
    EXPECT_EQ(answer(ControlCommand::toggle), u"auto-scroll on"_s);
    EXPECT_EQ(answer(ControlCommand::faster), u"speed 2.25"_s);
    EXPECT_EQ(answer(ControlCommand::rate), u"rate fast"_s);
    EXPECT_EQ(answer(ControlCommand::down), u"position 12.3 of 400.0"_s);
    EXPECT_EQ(answer(ControlCommand::minimize), u"expanded"_s);
    EXPECT_EQ(answer(ControlCommand::source), u"source obsidian"_s);
    EXPECT_EQ(answer(ControlCommand::paste), u"pasted"_s);
    EXPECT_EQ(answer(ControlCommand::quit), u"ending"_s);
}

TEST(ControlAnswer, TellsEverythingAsJson) {
    EXPECT_EQ(answer(ControlCommand::status),
              u"{\"version\":\"1.2.3\",\"visible\":true,\"collapsed\":false,"
              "\"source\":\"obsidian\",\"words\":2368,\"time\":\"12m30s\","
              "\"scrollPosition\":12.34,\"maximumScrollPosition\":400.0,\"speed\":2.25,"
              "\"rate\":\"fast\",\"autoScroll\":true,\"frameRate\":60}"_s);
}

} // namespace
} // namespace tessaline

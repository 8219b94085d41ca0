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
            .frameRate = 60,
            .pace = PaceMode::words,
            .wordsPerMinute = 149.5,
            .wordsRead = 12.25,
            .secondsLeft = 900.5,
            .secondsElapsed = 5,
            .wantedWordsPerMinute = 150,
            .finish = u"12.5m"_s,
            .finishTomorrow = false,
            .eyeLine = u"second"_s,
            .guide = ReadingGuide::band,
            .guideLines = 2,
            .countdown = 3,
            .atEnd = ScriptEnd::goRound,
            .glide = true,
            .mirror = Mirroring::vertical,
            .opacity = 65,
            .opacityShown = 65,
            .clickThrough = true,
            .clickedThrough = true,
            .font = u"DejaVu Serif"_s,
            .fontShown = u"DejaVu Serif"_s,
            .lineSpacing = 1.25,
            .distance = 80,
            .fontSize = 21,
            .suggestion = u"so many points"_s,
            .mediaKeys = true,
            .black = true,
            .keys = true,
            .remotePages = 2,
            .remote = u"on"_s,
            .remoteAddress = u"http://127.0.0.1:5000/"_s,
            .remoteProblem = u"none"_s,
            .file = u"/talks/a.md"_s,
            .continueAt = u"Continue at 43 %"_s,
            .latest = {u"/talks/a.md"_s, u"/talks/b.md"_s},
            .platform = u"wayland"_s};
}

PrompterStatus with(void (*change)(PrompterStatus& status)) {
    PrompterStatus status = aStatus();
    change(status);
    return status;
}

QString answer(ControlCommand command) {
    return controlAnswer({command, {}}, aStatus());
}

TEST(ControlAnswer, TellsWhatTheCommandIsAbout) {
    EXPECT_EQ(answer(ControlCommand::toggle), u"auto-scroll on"_s);
    EXPECT_EQ(answer(ControlCommand::speed), u"speed 2.25"_s);
    EXPECT_EQ(answer(ControlCommand::rate), u"rate fast"_s);
    EXPECT_EQ(answer(ControlCommand::down), u"position 12.3 of 400.0"_s);
    EXPECT_EQ(answer(ControlCommand::minimize), u"expanded"_s);
    EXPECT_EQ(answer(ControlCommand::source), u"source obsidian"_s);
    EXPECT_EQ(answer(ControlCommand::paste), u"pasted"_s);
    EXPECT_EQ(answer(ControlCommand::quit), u"ending"_s);
}

TEST(ControlAnswer, TellsWhatThePaceGoesBy) {
    for (const auto command :
         {ControlCommand::pace, ControlCommand::faster, ControlCommand::slower}) {
        const auto answerTo = [command](const PrompterStatus& status) {
            return controlAnswer({command, {}}, status);
        };
        EXPECT_EQ(answerTo(aStatus()), u"150 words a minute"_s);
        EXPECT_EQ(answerTo(with([](auto& status) { status.pace = PaceMode::speed; })),
                  u"speed 2.25"_s);
        EXPECT_EQ(answerTo(with([](auto& status) { status.pace = PaceMode::finish; })),
                  u"finish in 12.5 min"_s);
        EXPECT_EQ(answerTo(with([](auto& status) {
                      status.pace = PaceMode::finish;
                      status.finish = u"15:30"_s;
                  })),
                  u"finish at 15:30"_s);
        EXPECT_EQ(answerTo(with([](auto& status) {
                      status.pace = PaceMode::finish;
                      status.finish = u"15:30"_s;
                      status.finishTomorrow = true;
                  })),
                  u"finish at 15:30 tomorrow: that time has passed today"_s);
    }
}

TEST(ControlAnswer, TellsTheReadingOptions) {
    EXPECT_EQ(answer(ControlCommand::guide), u"guide band 2"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::guide, {}},
                            with([](auto& status) { status.guide = ReadingGuide::marker; })),
              u"guide marker"_s);
    EXPECT_EQ(answer(ControlCommand::eyeLine), u"eye line at the second line"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::eyeLine, {}},
                            with([](auto& status) { status.eyeLine = u"33.5"_s; })),
              u"eye line at 33.5 percent"_s);
    EXPECT_EQ(answer(ControlCommand::countdown), u"countdown 3 s"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::countdown, {}},
                            with([](auto& status) { status.countdown = 0; })),
              u"countdown off"_s);
    EXPECT_EQ(answer(ControlCommand::atEnd), u"at the end: round"_s);
    EXPECT_EQ(answer(ControlCommand::glide), u"glide on"_s);
    EXPECT_EQ(answer(ControlCommand::mediaKeys), u"media keys on"_s);
    EXPECT_EQ(answer(ControlCommand::remote),
              u"remote page at http://127.0.0.1:5000/, connected: 2"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::remote, u"code"_s}, aStatus()),
              u"http://127.0.0.1:5000/"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::remote, {}}, {}), u"remote page off"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::remote, {}},
                            {.remote = u"failed"_s, .remoteProblem = u"no port"_s}),
              u"remote page failed: no port"_s);
    EXPECT_EQ(answer(ControlCommand::black), u"text blacked out"_s);
    EXPECT_EQ(answer(ControlCommand::keys), u"keys shown"_s);
    EXPECT_EQ(answer(ControlCommand::open), u"asking for a file"_s);
    EXPECT_EQ(answer(ControlCommand::latest), u"1 /talks/a.md\n2 /talks/b.md"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::latest, {}}, {}), u"no latest scripts"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::latest, u"1"_s}, aStatus()), u"opened /talks/a.md"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::latest, u"clear"_s}, {}), u"list cleared"_s);
    EXPECT_EQ(answer(ControlCommand::continueReading), u"continued, position 12.3 of 400.0"_s);
    const PrompterStatus uncovered = with([](auto& status) { status.black = status.keys = false; });
    EXPECT_EQ(controlAnswer({ControlCommand::black, {}}, uncovered), u"text shown"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::keys, {}}, uncovered), u"keys hidden"_s);
}

TEST(ControlAnswer, TellsHowTheTextLooks) {
    EXPECT_EQ(answer(ControlCommand::mirror), u"mirror vertical"_s);
    EXPECT_EQ(answer(ControlCommand::opacity), u"opacity 65 percent"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::opacity, {}},
                            with([](auto& status) { status.opacityShown = 100; })),
              u"opacity 65 percent, which needs a compositing manager: the ground is opaque"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::font, {}},
                            with([](auto& status) { status.fontShown = u"default"_s; })),
              u"font DejaVu Serif, which is not installed: the default is shown"_s);
    EXPECT_EQ(answer(ControlCommand::clickThrough), u"click-through on"_s);
    EXPECT_EQ(controlAnswer({ControlCommand::clickThrough, {}},
                            with([](auto& status) { status.clickedThrough = false; })),
              u"click-through on, which this display server cannot do: the text keeps the mouse"_s);
    EXPECT_EQ(answer(ControlCommand::font), u"font DejaVu Serif"_s);
    EXPECT_EQ(answer(ControlCommand::lineSpacing), u"line spacing 1.25"_s);
    EXPECT_EQ(answer(ControlCommand::distance), u"reading distance 80 cm"_s);
    EXPECT_EQ(answer(ControlCommand::suggest), u"so many points"_s);
}

TEST(ControlAnswer, TellsEverythingAsJson) {
    EXPECT_EQ(answer(ControlCommand::status),
              u"{\"version\":\"1.2.3\",\"visible\":true,\"collapsed\":false,"
              "\"source\":\"obsidian\",\"words\":2368,\"time\":\"12m30s\","
              "\"scrollPosition\":12.34,\"maximumScrollPosition\":400.0,\"speed\":2.25,"
              "\"rate\":\"fast\",\"autoScroll\":true,\"frameRate\":60,"
              "\"pace\":\"words\",\"wordsPerMinute\":149.5,\"wordsRead\":12.25,"
              "\"secondsLeft\":900.5,\"secondsElapsed\":5.0,\"wantedWordsPerMinute\":150.0,"
              "\"finish\":\"12.5m\",\"finishTomorrow\":false,\"eyeLine\":\"second\","
              "\"guide\":\"band\",\"guideLines\":2,\"countdown\":3,\"atEnd\":\"round\","
              "\"glide\":true,\"mirror\":\"vertical\",\"opacity\":65,\"opacityShown\":65,"
              "\"clickThrough\":true,\"clickedThrough\":true,\"font\":\"DejaVu Serif\","
              "\"fontShown\":\"DejaVu Serif\",\"lineSpacing\":1.25,\"distance\":80,"
              "\"fontSize\":21.0,\"suggestion\":\"so many points\",\"mediaKeys\":true,"
              "\"remote\":\"on\",\"remoteAddress\":\"http://127.0.0.1:5000/\","
              "\"remoteProblem\":\"none\",\"remotePages\":2,"
              "\"black\":true,\"keys\":true,"
              "\"file\":\"/talks/a.md\",\"continueAt\":\"Continue at 43 %\","
              "\"latest\":[\"/talks/a.md\",\"/talks/b.md\"],\"platform\":\"wayland\"}"_s);
}

} // namespace
} // namespace tessaline

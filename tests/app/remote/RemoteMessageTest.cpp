#include "app/remote/RemoteMessage.h"
#include "support/CaseName.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

RemoteRequest read(const QByteArray& line) {
    const auto request = remoteMessage::decodeRequest(line);
    EXPECT_TRUE(std::holds_alternative<RemoteRequest>(request)) << line.constData();
    return std::holds_alternative<RemoteRequest>(request) ? std::get<RemoteRequest>(request)
                                                          : ShowRequest{};
}

QString refusalOf(const QByteArray& line) {
    const auto request = remoteMessage::decodeRequest(line);
    const auto* refusal = std::get_if<Refusal>(&request);
    return refusal ? refusal->reason : u"none"_s;
}

RemoteRequest sentAndRead(const RemoteRequest& request) {
    return read(remoteMessage::encode(request).chopped(1));
}

RemoteAnswer sentAndRead(const RemoteAnswer& answer) {
    const auto read = remoteMessage::decodeAnswer(remoteMessage::encode(answer).chopped(1));
    EXPECT_TRUE(read);
    return read.value_or(Refusal{u"lost"_s});
}

TEST(RemoteMessage, CarriesEveryKindOfRequest) {
    const RemoteRequest requests[] = {ShowRequest{},
                                      OpenRequest{u"/talk.md"_s, true},
                                      OpenRequest{u"/a"_s, false},
                                      OpenRequest{u"/tmp/b"_s, false, true},
                                      ControlRequest{ControlCommand::speed, u"2.5"_s},
                                      ControlRequest{ControlCommand::status, {}}};
    for (const auto& request : requests)
        EXPECT_EQ(sentAndRead(request), request);
}

TEST(RemoteMessage, CarriesEveryFieldOfAStatus) {
    const PrompterStatus status{.version = u"1.2.3"_s,
                                .visible = true,
                                .collapsed = true,
                                .source = SourceType::obsidian,
                                .words = 5'000'000'000,
                                .time = u"12m5s"_s,
                                .scrollPosition = 0.1,
                                .maximumScrollPosition = 33967775.3,
                                .speed = 2.25,
                                .rate = ScrollRate::fast,
                                .autoScroll = true,
                                .frameRate = 60,
                                .pace = PaceMode::finish,
                                .wordsPerMinute = 151.5,
                                .wordsRead = 20.25,
                                .secondsLeft = 600.5,
                                .secondsElapsed = 30.5,
                                .wantedWordsPerMinute = 155,
                                .finish = u"15:30"_s,
                                .finishTomorrow = true,
                                .eyeLine = u"33"_s,
                                .guide = ReadingGuide::band,
                                .guideLines = 2,
                                .countdown = 3,
                                .atEnd = ScriptEnd::stop,
                                .glide = true,
                                .mirror = Mirroring::horizontal,
                                .opacity = 30,
                                .opacityShown = 100,
                                .clickThrough = true,
                                .clickedThrough = true,
                                .font = u"DejaVu Serif"_s,
                                .fontShown = u"default"_s,
                                .lineSpacing = 1.05,
                                .distance = 200,
                                .fontSize = 18.5,
                                .suggestion = u"18 points"_s,
                                .mediaKeys = true,
                                .black = true,
                                .keys = true,
                                .remotePages = 2,
                                .remote = u"on"_s,
                                .remoteAddress = u"http://127.0.0.1:5000/"_s,
                                .remoteProblem = u"none"_s,
                                .file = u"/talks/a.md"_s,
                                .continueAt = u"Continue at 43 %"_s,
                                .latest = {u"/talks/a.md"_s, u"/b.md"_s},
                                .platform = u"xwayland"_s};
    EXPECT_EQ(sentAndRead(RemoteAnswer(status)), RemoteAnswer(status));
    EXPECT_EQ(sentAndRead(RemoteAnswer(PrompterStatus{})), RemoteAnswer(PrompterStatus{}));
}

TEST(RemoteMessage, CarriesARefusal) {
    const RemoteAnswer refusal = Refusal{u"cannot read /x: \"no\"\n"_s};
    EXPECT_EQ(sentAndRead(refusal), refusal);
}

TEST(RemoteMessage, LooksAsItIsDocumented) {
    EXPECT_EQ(read("{\"command\": \"show\"}"), RemoteRequest(ShowRequest{}));
    EXPECT_EQ(read("{\"command\": \"open\", \"path\": \"/talk.md\", \"follow\": true}"),
              RemoteRequest(OpenRequest{u"/talk.md"_s, true}));
    EXPECT_EQ(read("{\"command\": \"control\", \"words\": [\"speed\", \"2\"]}"),
              RemoteRequest(ControlRequest{ControlCommand::speed, u"2"_s}));
    EXPECT_EQ(remoteMessage::encode(RemoteAnswer(Refusal{u"no"_s})),
              "{\"error\":\"no\",\"ok\":false}\n");
}

TEST(RemoteMessage, IsOneLineWhateverItHolds) {
    const RemoteRequest request = OpenRequest{u"/two\nlines/żółć \" \\ \xdc80"_s};
    const QByteArray line = remoteMessage::encode(request);
    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_TRUE(line.endsWith('\n'));
    EXPECT_EQ(read(line.chopped(1)), request);
}

TEST(RemoteMessage, MayBeJustAsLongAsTheLimit) {
    const auto line = [](const QString& path) {
        return remoteMessage::encode(RemoteRequest(OpenRequest{path}));
    };
    const QString longest(remoteMessage::mostBytes - line({}).size(), u'a');
    EXPECT_EQ(line(longest).size(), remoteMessage::mostBytes);
    EXPECT_EQ(read(line(longest).chopped(1)), RemoteRequest(OpenRequest{longest}));
    EXPECT_TRUE(line(longest + u'a').isEmpty());
    EXPECT_EQ(refusalOf(QByteArray(remoteMessage::mostBytes, ' ')), u"this is no message"_s);
}

TEST(RemoteMessage, NamesACommandThatThereIsNot) {
    EXPECT_EQ(refusalOf("{\"command\":\"dance\"}"), u"there is no command 'dance'"_s);
    EXPECT_EQ(refusalOf("{}"), u"there is no command ''"_s);
    EXPECT_EQ(refusalOf("{\"command\":{}}"), u"there is no command ''"_s);
}

TEST(RemoteMessage, IsCheckedLikeACommandLine) {
    EXPECT_EQ(refusalOf("{\"command\":\"control\",\"words\":[\"dance\"]}"),
              u"unknown command 'dance'"_s);
    EXPECT_EQ(refusalOf("{\"command\":\"control\",\"words\":[\"speed\",\"nan\"]}"),
              u"speed 'nan' is not a number from 0 to 5"_s);
    EXPECT_EQ(refusalOf("{\"command\":\"control\",\"words\":7}"), u"ctl needs a COMMAND"_s);
    EXPECT_EQ(read("{\"command\":\"open\",\"path\":7}"), RemoteRequest(OpenRequest{}));
}

class NoRemoteMessage : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Lines, NoRemoteMessage,
                         testing::Values("", " ", "null", "7", "[]", "\"text\"", "{", "{} {}",
                                         "{\"a\":}", "\xff\xfe", "GET / HTTP/1.1"),
                         byValue);

TEST_P(NoRemoteMessage, IsToldFromOne) {
    EXPECT_EQ(refusalOf(GetParam()), u"this is no message"_s);
    EXPECT_FALSE(remoteMessage::decodeAnswer(GetParam()));
}

TEST(RemoteMessage, EndlessNestingIsNone) {
    const QByteArray nested = QByteArray("{\"a\":") + QByteArray(50'000, '[');
    EXPECT_EQ(refusalOf(nested), u"this is no message"_s);
}

TEST(RemoteMessage, WithoutAVerdictIsNoAnswer) {
    EXPECT_FALSE(remoteMessage::decodeAnswer("{}"));
    EXPECT_FALSE(remoteMessage::decodeAnswer("{\"ok\":1}"));
}

} // namespace
} // namespace tessaline

#include "app/page/RemotePage.h"
#include "../AppDelegateFixture.h"
#include "prompter/PrompterWindow.h"
#include "prompter/covers/TextCovers.h"
#include "prompter/view/ScriptView.h"
#include "settings/ReadingSettings.h"
#include "support/FakeWebServer.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;

namespace {

/// The running program with a script of three headings, and browsers that the test plays.
class RemotePageTest : public AppDelegateFixture {
protected:
    RemotePageTest() {
        configure([](PersistedSettings& saved) {
            saved.hasCompletedOnboarding = true;
            saved.scrollSpeed = 2;
        });
        launch();
        open(u"# The talk\n"_s + u"a line of words\n"_s.repeated(60) + u"## Two\n"_s +
             u"a line of words\n"_s.repeated(60));
    }

    void open(const QString& text) {
        delegate->scripts().open(text);
        mainQueue.runAll();
        view().completeLayout();
    }

    void choose(const std::function<void(ReadingOptions&)>& edit) {
        delegate->reading().change(edit);
    }
    void switchOn() {
        choose([](ReadingOptions& options) { options.remotePage = true; });
    }

    RemotePage& page() { return delegate->remotePage(); }

    /// What `ctl remote` answers: the address, or why not.
    QString ask(const QString& deed, const QString& detail = {}) {
        const auto answer = page().carryOut({ControlCommand::remote, deed, detail});
        const auto* refusal = std::get_if<Refusal>(&answer);
        return refusal ? refusal->reason : std::get<PrompterStatus>(answer).remoteAddress;
    }

    WebAnswer request(const QByteArray& path, const QByteArray& cookie) {
        HttpRequest request{HttpRequest::Method::get, path};
        request.headers = {{"host", "127.0.0.1:47865"}, {"cookie", cookie}};
        return web.site->answer(request, "127.0.0.1");
    }

    QByteArray pair() {
        HttpRequest request{HttpRequest::Method::post, "/pair"};
        request.headers = {{"host", "127.0.0.1:47865"}, {"origin", "http://127.0.0.1:47865"}};
        request.body = page().code().section(u'#', 1).toLatin1();
        const auto reply = std::get<HttpReply>(web.site->answer(request, "127.0.0.1"));
        return reply.headers.back().second.split(';').front();
    }

    QJsonObject shownTo(WebServer::Client client) {
        return QJsonDocument::fromJson(web.lastTold(client).toUtf8()).object();
    }

    ScriptView& view() { return delegate->prompter().textView(); }
    PrompterStatus status() { return delegate->status(); }
};

} // namespace

TEST_F(RemotePageTest, IsNotThereUntilTheUserWantsIt) {
    EXPECT_FALSE(web.isServing());
    EXPECT_EQ(page().code(), QString());
    EXPECT_EQ(status().remote, u"off"_s);
    EXPECT_THAT(timers.liveIntervals(), testing::Not(testing::Contains(0.05)));
    switchOn();
    EXPECT_TRUE(web.isServing());
    EXPECT_EQ(web.lastPlace, (WebServer::Place{u"127.0.0.1"_s, 47865}));
    EXPECT_EQ(status().remote, u"on"_s);
    EXPECT_EQ(status().remoteAddress, u"http://127.0.0.1:47865/"_s);
    choose([](ReadingOptions& options) { options.remotePage = false; });
    EXPECT_FALSE(web.isServing());
    EXPECT_EQ(page().code(), QString());
}

TEST_F(RemotePageTest, TellsTheSecretOnlyWhereItIsAskedFor) {
    switchOn();
    const QString secret = page().code().section(u'#', 1);
    EXPECT_EQ(secret.size(), 22);
    EXPECT_FALSE(status().remoteAddress.contains(secret));
    EXPECT_FALSE(ask(u"status"_s).contains(secret));
    EXPECT_EQ(ask(u"code"_s), page().code());
}

TEST_F(RemotePageTest, DoesWhatTheCommandLineSays) {
    EXPECT_EQ(ask(u"code"_s), u"the remote page is off"_s);
    ask(u"on"_s);
    EXPECT_TRUE(web.isServing());
    ask(u"port"_s, u"5000"_s);
    EXPECT_EQ(web.lastPlace, (WebServer::Place{u"127.0.0.1"_s, 5000}));
    EXPECT_EQ(ask(u"devices"_s), u"this machine is in no network"_s);
    web.addresses = QStringList{u"192.168.1.5"_s, u"fd00::5"_s};
    EXPECT_EQ(ask(u"devices"_s), u"http://192.168.1.5:5000/"_s);
    EXPECT_EQ(ask(u"devices"_s, u"fd00::5"_s), u"http://[fd00::5]:5000/"_s);
    EXPECT_EQ(web.lastPlace, (WebServer::Place{u"fd00::5"_s, 5000}));
    EXPECT_EQ(ask(u"devices"_s, u"0.0.0.0"_s),
              u"'0.0.0.0' is not an address of this machine, which has 192.168.1.5, fd00::5"_s);
    EXPECT_EQ(ask(u"local"_s), u"http://127.0.0.1:5000/"_s);
    ask(u"off"_s);
    EXPECT_FALSE(web.isServing());
}

TEST_F(RemotePageTest, TellsWhyItCannotBeServedAndTriesAgain) {
    web.problem = u"another program has port 47865"_s;
    switchOn();
    EXPECT_EQ(status().remote, u"failed"_s);
    EXPECT_EQ(status().remoteProblem, web.problem);
    EXPECT_EQ(page().code(), QString());
    web.problem.clear();
    timers.advance(10.1);
    EXPECT_EQ(status().remote, u"on"_s);
    EXPECT_EQ(status().remoteProblem, QString());
    timers.advance(30);
    EXPECT_EQ(web.timesServed, 1);
}

TEST_F(RemotePageTest, ShowsPagesWhatThePrompterShows) {
    switchOn();
    web.site->joined(1);
    EXPECT_EQ(status().remotePages, 1);
    EXPECT_EQ(shownTo(1)[u"moves"], false);
    EXPECT_EQ(shownTo(1)[u"seen"], true);
    EXPECT_EQ(shownTo(1)[u"paceText"].toString(), u"speed 2"_s);
    EXPECT_EQ(shownTo(1)[u"paragraph"], 0);
    view().jumps().toHeadingNumber(2);
    delegate->prompter().covers().setBlack(true);
    timers.advance(0.06);
    EXPECT_EQ(shownTo(1)[u"paragraph"], 61);
    EXPECT_EQ(shownTo(1)[u"black"], true);
    EXPECT_EQ(web.told[1].size(), 2u);
    timers.advance(1);
    EXPECT_EQ(web.told[1].size(), 2u) << "there is nothing new";
}

TEST_F(RemotePageTest, ShowsEveryPageTheSame) {
    switchOn();
    web.site->joined(1);
    view().jumps().toHeadingNumber(2);
    web.site->joined(2);
    timers.advance(0.06);
    EXPECT_EQ(web.lastTold(1), web.lastTold(2));
    EXPECT_EQ(shownTo(1)[u"paragraph"], 61);
}

TEST_F(RemotePageTest, HandsTheScriptOut) {
    switchOn();
    const QByteArray cookie = pair();
    web.site->joined(1);
    const int version = shownTo(1)[u"script"].toInt();
    const auto reply =
        std::get<HttpReply>(request("/script/" + QByteArray::number(version) + "/0", cookie));
    EXPECT_TRUE(reply.body.startsWith(R"([["h1","The talk"],["text","a line of words"])"));
    open(u"another"_s);
    timers.advance(0.06);
    EXPECT_EQ(shownTo(1)[u"script"], version + 1);
}

TEST_F(RemotePageTest, DoesWhatPagesSay) {
    switchOn();
    web.site->joined(1);
    web.site->told(1, u"play"_s);
    EXPECT_TRUE(status().autoScroll);
    web.site->told(1, u"pause"_s);
    web.site->told(1, u"heading 2"_s);
    const double second = view().scrollPosition();
    EXPECT_GT(second, 0);
    web.site->told(1, u"scroll -20"_s);
    EXPECT_DOUBLE_EQ(view().scrollPosition(), second - 20);
    web.site->told(1, u"paragraph 1"_s);
    EXPECT_EQ(view().scrollPosition(), 0);
    web.site->told(1, u"hide"_s);
    EXPECT_FALSE(status().visible);
    EXPECT_TRUE(web.dropped.empty());
}

TEST_F(RemotePageTest, DropsPagesThatSayAnythingElse) {
    switchOn();
    for (const QString& message : {u"quit"_s, u"open"_s, u"nonsense"_s, u""_s, u"remote off"_s}) {
        web.site->joined(1);
        web.dropped.clear();
        web.site->told(1, message);
        EXPECT_THAT(web.dropped, ElementsAre(1u)) << message.toStdString();
        EXPECT_EQ(status().remotePages, 0);
    }
    EXPECT_EQ(terminations, 0);
    EXPECT_TRUE(web.isServing());
}

TEST_F(RemotePageTest, DropsPagesThatSayTooMuch) {
    switchOn();
    web.site->joined(1);
    for (int i = 0; i < 200 && web.dropped.empty(); ++i)
        web.site->told(1, u"top"_s);
    EXPECT_THAT(web.dropped, ElementsAre(1u));
}

TEST_F(RemotePageTest, HasRoomForEightPages) {
    switchOn();
    for (WebServer::Client client = 1; client <= 9; ++client)
        web.site->joined(client);
    EXPECT_THAT(web.dropped, ElementsAre(9u));
    EXPECT_EQ(status().remotePages, 8);
}

TEST_F(RemotePageTest, DisconnectsAllByAnotherSecret) {
    switchOn();
    const QByteArray cookie = pair();
    EXPECT_EQ(std::get<HttpReply>(request("/script/", cookie)).status, 404);
    web.site->joined(1);
    web.site->joined(2);
    const QString before = page().code();
    int changes = 0;
    page().onChange = [&changes] { ++changes; };
    ask(u"renew"_s);
    EXPECT_THAT(web.dropped, ElementsAre(1u, 2u));
    EXPECT_NE(page().code(), before);
    EXPECT_GT(changes, 0);
    EXPECT_EQ(std::get<HttpReply>(request("/script/", cookie)).status, 403);
}

TEST_F(RemotePageTest, WatchesNothingWithoutPages) {
    switchOn();
    web.site->joined(1);
    EXPECT_THAT(timers.liveIntervals(), testing::Contains(0.05));
    web.site->left(1);
    EXPECT_THAT(timers.liveIntervals(), testing::Not(testing::Contains(0.05)));
}

} // namespace tessaline

#include "remote/page/PageGate.h"
#include "support/CaseName.h"

#include <gtest/gtest.h>

namespace tessaline {

namespace {

const QByteArray ownHost("192.168.1.5:4000");
const QByteArray ownOrigin("http://192.168.1.5:4000");
const QByteArray phone("192.168.1.20");

/// The page on a network, with files whose text is their name.
class PageGateTest : public testing::Test {
protected:
    HttpRequest get(const QByteArray& path) const {
        HttpRequest request{HttpRequest::Method::get, path};
        request.headers["host"] = ownHost;
        if (!cookie.isEmpty()) request.headers["cookie"] = cookie;
        return request;
    }

    static HttpRequest pairing(const QByteArray& secret) {
        HttpRequest request{HttpRequest::Method::post, "/pair"};
        request.headers = {{"host", ownHost}, {"origin", ownOrigin}};
        request.body = secret;
        return request;
    }

    HttpRequest socket() const {
        HttpRequest request = get("/socket");
        request.headers["origin"] = ownOrigin;
        request.headers["connection"] = "Upgrade";
        request.headers["upgrade"] = "websocket";
        return request;
    }

    WebAnswer ask(const HttpRequest& request, const QByteArray& address = phone) {
        return gate.answer(request, address, now);
    }

    /// The status; 0 where a web socket may be.
    int statusOf(const HttpRequest& request, const QByteArray& address = phone) {
        const WebAnswer answer = ask(request, address);
        const auto* reply = std::get_if<HttpReply>(&answer);
        return reply ? reply->status : 0;
    }

    QByteArray bodyOf(const HttpRequest& request) { return std::get<HttpReply>(ask(request)).body; }

    static QByteArray headerOf(const HttpReply& reply, const QByteArray& name) {
        for (const auto& [each, value] : reply.headers)
            if (each == name) return value;
        return {};
    }

    void pair() {
        const auto reply = std::get<HttpReply>(ask(pairing(gate.secret())));
        ASSERT_EQ(reply.status, 204);
        cookie = headerOf(reply, "Set-Cookie");
        cookie.truncate(cookie.indexOf(';'));
    }

    bool hasRoom = true;
    QByteArray cookie;
    PairingLimit::Time now{};
    PageGate gate{{"192.168.1.5", 4000},
                  {[](const QByteArray& name) { return name; },
                   [](const QByteArray& name) -> std::optional<QByteArray> {
                       if (name != "1/0") return {};
                       return "script";
                   },
                   [this] { return hasRoom; }},
                  systemRandomBytes};
};

} // namespace

TEST_F(PageGateTest, ShowsStrangersOnlyWhereToPair) {
    EXPECT_EQ(bodyOf(get("/")), "pair.html");
    EXPECT_EQ(bodyOf(get("/pair.js")), "pair.js");
    EXPECT_EQ(bodyOf(get("/style.css")), "style.css");
    for (const char* path :
         {"/index.html", "/page.js", "/connection.js", "/script.js", "/throttle.js", "/script/1/0",
          "/socket", "/nothing", "/pair", "/../../etc/passwd", "/page.js?", "//page.js"}) {
        EXPECT_EQ(statusOf(get(path)), 403) << path;
        EXPECT_EQ(bodyOf(get(path)), "") << path;
    }
    EXPECT_EQ(statusOf(socket()), 403);
}

TEST_F(PageGateTest, ShowsThePageToWhoTellsTheSecret) {
    pair();
    EXPECT_EQ(bodyOf(get("/")), "index.html");
    EXPECT_EQ(bodyOf(get("/page.js")), "page.js");
    EXPECT_EQ(bodyOf(get("/script/1/0")), "script");
    EXPECT_EQ(statusOf(socket()), 0);
    for (const char* path : {"/script/2/0", "/script/", "/index.html", "/../../etc/passwd",
                             "/page.js?", "/socket", "/pair"})
        EXPECT_EQ(statusOf(get(path)), 404) << path;
}

TEST_F(PageGateTest, KeepsTheSessionFromScriptsAndOtherSites) {
    const auto reply = std::get<HttpReply>(ask(pairing(gate.secret())));
    const QByteArray given = headerOf(reply, "Set-Cookie");
    EXPECT_TRUE(given.startsWith("tessaline-4000="));
    EXPECT_TRUE(given.endsWith("; Path=/; HttpOnly; SameSite=Strict"));
    EXPECT_FALSE(given.contains(gate.secret())) << "a cookie is seen more often than the code";
}

TEST_F(PageGateTest, RefusesAWrongSecret) {
    QByteArray nearly = gate.secret();
    nearly[0] = nearly[0] == 'a' ? 'b' : 'a';
    for (const QByteArray& wrong : {QByteArray(), nearly, gate.secret() + '\n'}) {
        const auto reply = std::get<HttpReply>(ask(pairing(wrong)));
        EXPECT_EQ(reply.status, 403);
        EXPECT_EQ(headerOf(reply, "Set-Cookie"), "");
    }
    cookie = "tessaline-4000=";
    EXPECT_EQ(bodyOf(get("/")), "pair.html");
    cookie = "tessaline-4000=" + gate.secret();
    EXPECT_EQ(bodyOf(get("/")), "pair.html");
}

TEST_F(PageGateTest, RefusesEvenTheRightSecretAfterFiveWrongOnes) {
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(statusOf(pairing("wrong")), 403);
    EXPECT_EQ(statusOf(pairing(gate.secret())), 429);
    EXPECT_EQ(statusOf(pairing(gate.secret()), "192.168.1.21"), 204) << "another phone";
    now += std::chrono::seconds(60);
    EXPECT_EQ(statusOf(pairing(gate.secret())), 204);
}

TEST_F(PageGateTest, AnswersToNoOtherName) {
    pair();
    for (const char* host : {"rebound.example:4000", "192.168.1.5", "localhost:4000", ""}) {
        HttpRequest page = get("/");
        page.headers["host"] = host;
        EXPECT_EQ(statusOf(page), 421) << host;
        HttpRequest wanted = socket();
        wanted.headers["host"] = host;
        wanted.headers["origin"] = QByteArray("http://") + host;
        EXPECT_EQ(statusOf(wanted), 421) << host;
        HttpRequest told = pairing(gate.secret());
        told.headers["host"] = host;
        told.headers["origin"] = QByteArray("http://") + host;
        EXPECT_EQ(statusOf(told), 421) << host;
    }
}

TEST_F(PageGateTest, TakesNothingFromOtherPages) {
    pair();
    for (const char* origin : {"http://evil.example", "null", "", "http://192.168.1.5:4001",
                               "https://192.168.1.5:4000", "http://192.168.1.5:4000/"}) {
        HttpRequest wanted = socket();
        wanted.headers["origin"] = origin;
        EXPECT_EQ(statusOf(wanted), 403) << origin;
        HttpRequest told = pairing(gate.secret());
        told.headers["origin"] = origin;
        EXPECT_EQ(statusOf(told), 403) << origin;
    }
    HttpRequest unnamed = socket();
    unnamed.headers.erase("origin");
    EXPECT_EQ(statusOf(unnamed), 403);
}

TEST_F(PageGateTest, DoesNotCountTheTriesOfOtherPages) {
    HttpRequest foreign = pairing("wrong");
    foreign.headers["origin"] = "http://evil.example";
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(statusOf(foreign), 403);
    EXPECT_EQ(statusOf(pairing(gate.secret())), 204);
}

TEST_F(PageGateTest, LendsItsFilesToNoOtherPage) {
    pair();
    for (const char* site : {"cross-site", "same-site", "anything"}) {
        HttpRequest lent = get("/script/1/0");
        lent.headers["sec-fetch-site"] = site;
        EXPECT_EQ(statusOf(lent), 403) << site;
    }
    for (const char* site : {"same-origin", "none"}) {
        HttpRequest own = get("/script/1/0");
        own.headers["sec-fetch-site"] = site;
        EXPECT_EQ(statusOf(own), 200) << site;
    }
    HttpRequest link = get("/");
    link.headers["sec-fetch-site"] = "cross-site";
    EXPECT_EQ(statusOf(link), 200);
}

TEST_F(PageGateTest, HasNothingToPostToButThePairing) {
    pair();
    HttpRequest request = pairing(gate.secret());
    request.path = "/";
    EXPECT_EQ(statusOf(request), 405);
}

TEST_F(PageGateTest, LetsNoMoreInThanThereIsRoomFor) {
    pair();
    hasRoom = false;
    EXPECT_EQ(statusOf(socket()), 503);
}

TEST_F(PageGateTest, KnowsNobodyWithANewSecret) {
    pair();
    const QByteArray before = gate.secret();
    gate.renew();
    EXPECT_NE(gate.secret(), before);
    EXPECT_EQ(bodyOf(get("/")), "pair.html");
    EXPECT_EQ(statusOf(socket()), 403);
    EXPECT_EQ(statusOf(pairing(before)), 403);
}

TEST_F(PageGateTest, LetsThePageLoadAndDoNothingForeign) {
    pair();
    for (const char* path : {"/", "/page.js", "/script/1/0", "/nothing"}) {
        const auto reply = std::get<HttpReply>(ask(get(path)));
        EXPECT_EQ(headerOf(reply, "Content-Security-Policy"),
                  "default-src 'none'; script-src 'self'; style-src 'self'; "
                  "connect-src 'self' ws://192.168.1.5:4000; base-uri 'none'; "
                  "form-action 'none'; frame-ancestors 'none'; "
                  "require-trusted-types-for 'script'")
            << path;
        EXPECT_EQ(headerOf(reply, "X-Content-Type-Options"), "nosniff") << path;
        EXPECT_EQ(headerOf(reply, "X-Frame-Options"), "DENY") << path;
        EXPECT_EQ(headerOf(reply, "Cache-Control"), "no-store") << path;
        EXPECT_EQ(headerOf(reply, "Referrer-Policy"), "no-referrer") << path;
    }
}

TEST_F(PageGateTest, SaysWhatItsFilesAre) {
    pair();
    const auto typeOf = [this](const QByteArray& path) {
        return headerOf(std::get<HttpReply>(ask(get(path))), "Content-Type");
    };
    EXPECT_EQ(typeOf("/"), "text/html; charset=utf-8");
    EXPECT_EQ(typeOf("/style.css"), "text/css; charset=utf-8");
    EXPECT_EQ(typeOf("/page.js"), "text/javascript; charset=utf-8");
    EXPECT_EQ(typeOf("/script/1/0"), "application/json");
}

} // namespace tessaline

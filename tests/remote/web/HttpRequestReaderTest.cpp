#include "remote/web/HttpRequestReader.h"
#include "support/CaseName.h"

#include <gtest/gtest.h>

namespace tessaline {

namespace {

const QByteArray plainRequest("GET /style.css HTTP/1.1\r\nHost: 127.0.0.1:8080\r\n\r\n");

HttpRequest readWhole(const QByteArray& bytes) {
    return std::get<HttpRequest>(httpRequestReader::read(bytes));
}

bool isWrong(const QByteArray& bytes) {
    return std::holds_alternative<WrongRequest>(httpRequestReader::read(bytes));
}

bool isUnfinished(const QByteArray& bytes) {
    return std::holds_alternative<UnfinishedRequest>(httpRequestReader::read(bytes));
}

QByteArray requestWith(const QByteArray& header) {
    return "GET / HTTP/1.1\r\nHost: a\r\n" + header + "\r\n\r\n";
}

QByteArray postOf(const QByteArray& length, const QByteArray& body) {
    return "POST /pair HTTP/1.1\r\nHost: a\r\nContent-Length: " + length + "\r\n\r\n" + body;
}

class WrongRequestTest : public testing::TestWithParam<QByteArray> {};

} // namespace

TEST(HttpRequestReader, ReadsWhatABrowserAsksFor) {
    const HttpRequest request = readWhole(plainRequest);
    EXPECT_EQ(request.method, HttpRequest::Method::get);
    EXPECT_EQ(request.path, "/style.css");
    EXPECT_EQ(request.header("host"), "127.0.0.1:8080");
    EXPECT_EQ(request.header("cookie"), "");
    EXPECT_FALSE(request.wantsWebSocket());
}

TEST(HttpRequestReader, WaitsForTheRestOfWhatIsUnfinished) {
    for (qsizetype length = 0; length < plainRequest.size(); ++length)
        EXPECT_TRUE(isUnfinished(plainRequest.first(length))) << length;
    EXPECT_TRUE(isUnfinished(postOf("4", "sec")));
}

TEST(HttpRequestReader, ReadsTheBodyThatWasAnnounced) {
    const HttpRequest request = readWhole(postOf("4", "secr"));
    EXPECT_EQ(request.method, HttpRequest::Method::post);
    EXPECT_EQ(request.body, "secr");
}

TEST(HttpRequestReader, FindsACookieAmongOthers) {
    const HttpRequest request = readWhole(requestWith("Cookie: a=1; id=two; identity=3"));
    EXPECT_EQ(request.cookie("id"), "two");
    EXPECT_EQ(request.cookie("i"), "");
    EXPECT_EQ(request.cookie("identity"), "3");
}

TEST(HttpRequestReader, SeesThatAWebSocketIsWanted) {
    EXPECT_TRUE(readWhole(requestWith("Connection: keep-alive, Upgrade\r\nUpgrade: websocket"))
                    .wantsWebSocket());
    EXPECT_FALSE(
        readWhole(requestWith("Connection: keep-alive\r\nUpgrade: websocket")).wantsWebSocket());
    EXPECT_FALSE(readWhole(requestWith("Connection: Upgrade\r\nUpgrade: h2c")).wantsWebSocket());
}

TEST(HttpRequestReader, ReadsNoMoreThanItsLimits) {
    const QByteArray longest =
        requestWith("a: " + QByteArray(httpRequestReader::longestHead - 32, 'x'));
    EXPECT_EQ(longest.size(), httpRequestReader::longestHead);
    readWhole(longest);
    EXPECT_TRUE(isWrong(requestWith("a: " + QByteArray(httpRequestReader::longestHead, 'x'))));
    EXPECT_TRUE(isWrong(QByteArray(httpRequestReader::longestHead, 'x')));

    QByteArray headers = "h0: x";
    for (std::size_t i = 1; i + 1 < httpRequestReader::mostHeaders; ++i)
        headers += "\r\nh" + QByteArray::number(qulonglong(i)) + ": x";
    readWhole(requestWith(headers));
    EXPECT_TRUE(isWrong(requestWith(headers + "\r\nlast: x")));

    EXPECT_TRUE(
        isWrong("GET /" + QByteArray(httpRequestReader::longestPath, 'x') + " HTTP/1.1\r\n\r\n"));
    readWhole(postOf("256", QByteArray(256, 'x')));
    EXPECT_TRUE(isWrong(postOf("257", QByteArray(257, 'x'))));
}

TEST_P(WrongRequestTest, IsRefused) {
    EXPECT_TRUE(isWrong(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    HttpRequestReader, WrongRequestTest,
    testing::Values("PUT / HTTP/1.1\r\nHost: a\r\n\r\n", "get / HTTP/1.1\r\nHost: a\r\n\r\n",
                    "GET / HTTP/1.0\r\nHost: a\r\n\r\n", "GET  / HTTP/1.1\r\nHost: a\r\n\r\n",
                    "GET http://a/ HTTP/1.1\r\nHost: a\r\n\r\n", "GET / / HTTP/1.1\r\n\r\n",
                    "\r\n\r\n", "GET /\xc3\xa4 HTTP/1.1\r\n\r\n",
                    "GET / HTTP/1.1\nHost: a\n\r\n\r\n", requestWith("no colon"),
                    requestWith(": no name"), requestWith("space : x"), requestWith(" folded: x"),
                    requestWith("a: b\rc"), requestWith(QByteArray("a: b\0c", 6)),
                    requestWith("host: b"), requestWith("Transfer-Encoding: chunked"),
                    requestWith("Content-Length: 4"), postOf("+4", "secr"), postOf("4, 4", "secr"),
                    postOf("", ""), postOf("0x4", "secr"), postOf("-1", ""),
                    postOf("18446744073709551620", "secr"), postOf("4", "secret"),
                    plainRequest + "GET / HTTP/1.1\r\n\r\n"),
    byValue);

} // namespace tessaline

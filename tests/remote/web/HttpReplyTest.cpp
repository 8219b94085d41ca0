#include "remote/web/HttpReply.h"

#include <gtest/gtest.h>

namespace tessaline {

TEST(HttpReply, TellsItsHeadersAndItsLengthAndThatTheConnectionEnds) {
    HttpReply reply;
    reply.headers = {{"Content-Type", "text/html"}};
    reply.body = "four";
    EXPECT_EQ(reply.head(), "HTTP/1.1 200 OK\r\n"
                            "Content-Type: text/html\r\n"
                            "Content-Length: 4\r\n"
                            "Connection: close\r\n\r\n");
}

TEST(HttpReply, HasNoLengthWhereThereIsNoBody) {
    HttpReply reply;
    reply.status = 204;
    EXPECT_EQ(reply.head(), "HTTP/1.1 204 No Content\r\nConnection: close\r\n\r\n");
}

} // namespace tessaline

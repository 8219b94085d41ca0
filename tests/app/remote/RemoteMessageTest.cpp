#include "app/remote/RemoteMessage.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(RemoteMessage, IsOneLineWhateverItHolds) {
    const QJsonObject message{{u"path"_s, u"/two\nlines/żółć \" \\"_s}};
    const QByteArray line = remoteMessage::encode(message);
    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_TRUE(line.endsWith('\n'));
    EXPECT_EQ(remoteMessage::decode(line.chopped(1)), message);
}

TEST(RemoteMessage, MayBeJustAsLongAsTheLimit) {
    const qsizetype frame = remoteMessage::encode({{u"x"_s, QString()}}).size();
    const QString longest(remoteMessage::mostBytes - frame, u'a');
    const QByteArray line = remoteMessage::encode({{u"x"_s, longest}});
    EXPECT_EQ(line.size(), remoteMessage::mostBytes);
    EXPECT_TRUE(remoteMessage::decode(line.chopped(1)));
    EXPECT_TRUE(remoteMessage::encode({{u"x"_s, QString(longest + u'a')}}).isEmpty());
    EXPECT_FALSE(remoteMessage::decode(QByteArray(remoteMessage::mostBytes, ' ')));
}

class NoRemoteMessage : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Lines, NoRemoteMessage,
                         testing::Values("", " ", "null", "7", "[]", "\"text\"", "{", "{} {}",
                                         "{\"a\":}", "\xff\xfe", "GET / HTTP/1.1"));

TEST_P(NoRemoteMessage, IsToldFromOne) {
    EXPECT_FALSE(remoteMessage::decode(GetParam()));
}

TEST(RemoteMessage, EndlessNestingIsNone) {
    EXPECT_FALSE(remoteMessage::decode(QByteArray("{\"a\":") + QByteArray(50'000, '[')));
}

} // namespace
} // namespace tessaline

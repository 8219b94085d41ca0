#include "remote/page/PageSessions.h"

#include <gtest/gtest.h>

namespace tessaline {

TEST(PageSessions, KnowsThoseThatItOpened) {
    PageSessions sessions(systemRandomBytes);
    const QByteArray one = sessions.open();
    const QByteArray other = sessions.open();
    EXPECT_NE(one, other);
    EXPECT_TRUE(sessions.isOpen(one));
    EXPECT_TRUE(sessions.isOpen(other));
    EXPECT_FALSE(sessions.isOpen(""));
    EXPECT_FALSE(sessions.isOpen(one + 'x'));
    sessions.closeAll();
    EXPECT_FALSE(sessions.isOpen(one));
}

TEST(PageSessions, EndsTheOldestForOneTooMany) {
    PageSessions sessions(systemRandomBytes);
    const QByteArray first = sessions.open();
    const QByteArray second = sessions.open();
    for (std::size_t i = 2; i < PageSessions::most; ++i)
        sessions.open();
    EXPECT_TRUE(sessions.isOpen(first));
    sessions.open();
    EXPECT_FALSE(sessions.isOpen(first));
    EXPECT_TRUE(sessions.isOpen(second));
}

} // namespace tessaline

#include "platform/linux/desktop/portal/PortalMessages.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(PortalMessagesTest, RequestsArePutWhereThePortalAnswersThem) {
    EXPECT_EQ(portalRequestPath(u":1.207"_s, u"tessaline3"_s),
              u"/org/freedesktop/portal/desktop/request/1_207/tessaline3"_s);
}

TEST(PortalMessagesTest, AKeyIsAskedForOnlyWhereOneIsPreferred) {
    const auto entries = portalEntries({{u"a"_s, u"Do a"_s, u"CTRL+a"_s}, {u"b"_s, u"Do b"_s, {}}});
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0].id, u"a"_s);
    EXPECT_EQ(entries[0].properties.value(u"description"_s).toString(), u"Do a"_s);
    EXPECT_EQ(entries[0].properties.value(u"preferred_trigger"_s).toString(), u"CTRL+a"_s);
    EXPECT_FALSE(entries[1].properties.contains(u"preferred_trigger"_s));
}

TEST(PortalMessagesTest, WhatIsNoListOfShortcutsListsNone) {
    EXPECT_TRUE(boundShortcuts({}).empty());
    EXPECT_TRUE(boundShortcuts(u"text"_s).empty());
}

} // namespace
} // namespace tessaline

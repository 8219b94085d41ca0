#include "settings/AppleNotesConfiguration.h"

#include <QSet>

#include <gtest/gtest.h>

#include <set>
#include <unordered_set>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

const AppleNotesConfiguration talk{u"x-coredata://1"_s, u"Talk"_s};
const AppleNotesConfiguration sameNameOtherNote{u"x-coredata://2"_s, u"Talk"_s};
const AppleNotesConfiguration sameNoteRenamed{u"x-coredata://1"_s, u"Talk 2"_s};

TEST(AppleNotesConfiguration, IsEqualWhenBothMembersAre) {
    EXPECT_EQ(talk, (AppleNotesConfiguration{u"x-coredata://1"_s, u"Talk"_s}));
    EXPECT_NE(talk, sameNameOtherNote);
    EXPECT_NE(talk, sameNoteRenamed);
}

TEST(AppleNotesConfiguration, ServesAsKeyOfOrderedAndHashedContainers) {
    const auto notes = {talk, sameNameOtherNote, sameNoteRenamed, talk};
    EXPECT_EQ(std::set<AppleNotesConfiguration>(notes).size(), 3U);
    EXPECT_EQ(std::unordered_set<AppleNotesConfiguration>(notes).size(), 3U);
    EXPECT_EQ(QSet<AppleNotesConfiguration>(notes).size(), 3);
}

} // namespace
} // namespace tessaline

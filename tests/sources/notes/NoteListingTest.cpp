#include "sources/notes/NoteListing.h"

#include "support/PrintQt.h"

#include <gmock/gmock.h>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace tessaline {
namespace {

using Note = NoteLibrary::Note;

TEST(NoteListing, KeepsTheOrderOfTheLines) {
    EXPECT_THAT(parseNoteListing(u"b\tSecond\na\tFirst"),
                ElementsAre(Note{u"b"_s, u"Second"_s}, Note{u"a"_s, u"First"_s}));
}

TEST(NoteListing, SkipsALineWithoutATab) {
    EXPECT_THAT(parseNoteListing(u"a\tFirst\nc\nb\tSecond\n"),
                ElementsAre(Note{u"a"_s, u"First"_s}, Note{u"b"_s, u"Second"_s}));
}

TEST(NoteListing, SkipsALineWithoutAnIdentifier) {
    EXPECT_THAT(parseNoteListing(u"\tFirst\n \u00a0\tSecond\n\t\n"), IsEmpty());
}

TEST(NoteListing, TrimsBothFields) {
    EXPECT_THAT(parseNoteListing(u" a \t First note\r\n"),
                ElementsAre(Note{u"a"_s, u"First note"_s}));
}

TEST(NoteListing, DropsWhatFollowsATabInAName) {
    EXPECT_THAT(parseNoteListing(u"a\tFirst\tor not\t"), ElementsAre(Note{u"a"_s, u"First"_s}));
}

TEST(NoteListing, KeepsANoteWithoutAName) {
    EXPECT_THAT(parseNoteListing(u"a\t\nb\tSecond"),
                ElementsAre(Note{u"a"_s, u""_s}, Note{u"b"_s, u"Second"_s}));
    EXPECT_THAT(parseNoteListing(u"a\t\tor not"), ElementsAre(Note{u"a"_s, u""_s}));
}

TEST(NoteListing, MayBeEmpty) {
    EXPECT_THAT(parseNoteListing(u""), IsEmpty());
}

} // namespace
} // namespace tessaline

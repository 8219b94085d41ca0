#include "sources/notes/NoteReader.h"

#include "support/CaseName.h"
#include "support/FakeProcessRunner.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::VariantWith;

namespace tessaline {
namespace {

using Note = NoteLibrary::Note;
using Notes = std::vector<Note>;

class NoteReaderTest : public ::testing::Test {
protected:
    /// The script that was run last; the only call must be a proper one.
    QString script() const {
        EXPECT_EQ(runner.calls.size(), 1U);
        EXPECT_EQ(runner.calls[0].program, u"/usr/bin/osascript"_s);
        EXPECT_EQ(runner.calls[0].arguments.size(), 2);
        EXPECT_EQ(runner.calls[0].arguments[0], u"-e"_s);
        return runner.calls[0].arguments[1];
    }

    FakeProcessRunner runner;
};

TEST_F(NoteReaderTest, AsksForTheMostRecentNoteWhenNoneIsChosen) {
    readNote(runner, std::nullopt);
    EXPECT_EQ(script(),
              u"tell application \"Notes\"\n    set allNotes to every note\n    if (count "
              "of allNotes) > 0 then\n        set recentNote to last item of allNotes\n   "
              "     return body of recentNote\n    else\n        return \"\"\n    end "
              "if\nend tell"_s);
}

TEST_F(NoteReaderTest, AsksForTheChosenNoteByItsIdentifier) {
    readNote(runner, AppleNotesConfiguration{u"x-coredata://A/ICNote/p1"_s, u"Talk"_s});
    EXPECT_EQ(script(), u"tell application \"Notes\"\n    set targetNote to first note whose id is "
                        "\"x-coredata://A/ICNote/p1\"\n    return body of targetNote\nend tell"_s);
}

TEST_F(NoteReaderTest, InsertsTheIdentifierAsItIs) {
    readNote(runner, AppleNotesConfiguration{u"a\"b\\c'd\n%1 $(e)"_s, u""_s});
    EXPECT_EQ(script(), u"tell application \"Notes\"\n    set targetNote to first note whose id is "
                        "\"a\"b\\c'd\n%1 $(e)\"\n    return body of targetNote\nend tell"_s);
}

TEST_F(NoteReaderTest, AsksForAllNotes) {
    readNoteList(runner);
    EXPECT_EQ(script(),
              u"tell application \"Notes\"\n    set output to \"\"\n    repeat with n in "
              "every note\n        set output to output & (id of n) & tab & (name of n) & "
              "linefeed\n    end repeat\n    return output\nend tell"_s);
}

TEST_F(NoteReaderTest, ConvertsTheBody) {
    runner.result.output = u"<div><h1>Talk</h1></div>"_s;
    EXPECT_THAT(readNote(runner, std::nullopt), VariantWith<QString>(u"# Talk"_s));
}

TEST_F(NoteReaderTest, HasNoContentInAnEmptyOutput) {
    EXPECT_THAT(readNote(runner, std::nullopt),
                VariantWith<ContentSourceError>(ContentSourceError::noContent()));
}

TEST_F(NoteReaderTest, TakesABodyOfTagsAloneForAnEmptyText) {
    runner.result.output = u"<div></div>"_s;
    EXPECT_THAT(readNote(runner, std::nullopt), VariantWith<QString>(u""_s));
}

TEST_F(NoteReaderTest, ListsTheNotes) {
    runner.result.output = u"a\tFirst\nb\tSecond\nc"_s;
    EXPECT_THAT(readNoteList(runner), VariantWith<Notes>(ElementsAre(Note{u"a"_s, u"First"_s},
                                                                     Note{u"b"_s, u"Second"_s})));
}

TEST_F(NoteReaderTest, MayListNoNotes) {
    EXPECT_THAT(readNoteList(runner), VariantWith<Notes>(IsEmpty()));
}

struct ScriptFailure {
    QString error;
    std::int32_t exitCode;
    ContentSourceError expected;
};

class ScriptFailures : public NoteReaderTest,
                       public ::testing::WithParamInterface<ScriptFailure> {};

TEST_P(ScriptFailures, AreClassified) {
    runner.result = {u"ignored"_s, GetParam().error, GetParam().exitCode};
    EXPECT_THAT(readNote(runner, std::nullopt),
                VariantWith<ContentSourceError>(GetParam().expected));
    EXPECT_THAT(readNoteList(runner), VariantWith<ContentSourceError>(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Such, ScriptFailures,
    ::testing::Values(
        ScriptFailure{u"execution error: Not authorised (-1743)"_s, 1,
                      ContentSourceError::permissionDenied()},
        ScriptFailure{u"osascript is not allowed to send keystrokes"_s, 1,
                      ContentSourceError::permissionDenied()},
        ScriptFailure{u"no assistive access"_s, 1, ContentSourceError::permissionDenied()},
        ScriptFailure{u"Not Allowed, Assistive"_s, 1,
                      ContentSourceError::scriptError(u"Not Allowed, Assistive"_s)},
        ScriptFailure{u"Can’t get note (-1728)"_s, 1,
                      ContentSourceError::scriptError(u"Can’t get note (-1728)"_s)},
        ScriptFailure{u""_s, 1, ContentSourceError::scriptError(u"Script failed"_s)},
        ScriptFailure{u"No such file or directory"_s, -1,
                      ContentSourceError::scriptError(u"No such file or directory"_s)}),
    byMember<&ScriptFailure::error>);

TEST_F(NoteReaderTest, IgnoresWarningsOfAScriptThatSucceeds) {
    runner.result = {u"text"_s, u"not allowed (-1743)"_s, 0};
    EXPECT_THAT(readNote(runner, std::nullopt), VariantWith<QString>(u"text"_s));
}

} // namespace
} // namespace tessaline

#include "sources/notes/AppleNotesLibrary.h"

#include "support/FakeMainQueue.h"
#include "support/FakeProcessRunner.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeUrlOpener.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::VariantWith;

namespace tessaline {
namespace {

using Note = NoteLibrary::Note;

class AppleNotesLibraryTest : public ::testing::Test {
protected:
    void list() {
        library->listNotes(
            [this](const NoteLibrary::Answer& answer) { answers.push_back(answer); });
    }

    FakeMainQueue queue;
    FakeTaskRunner tasks;
    FakeProcessRunner processes;
    FakeUrlOpener opener;
    std::vector<NoteLibrary::Answer> answers;
    std::unique_ptr<AppleNotesLibrary> library =
        std::make_unique<AppleNotesLibrary>(queue, tasks, processes, opener);
};

TEST_F(AppleNotesLibraryTest, ListsInTheBackgroundAndAnswersOnTheMainQueue) {
    processes.result.output = u"a\tFirst\nb\tSecond"_s;
    list();
    EXPECT_THAT(processes.calls, IsEmpty());
    tasks.runAll();
    EXPECT_THAT(answers, IsEmpty());
    queue.runAll();
    EXPECT_THAT(answers, ElementsAre(VariantWith<std::vector<Note>>(
                             ElementsAre(Note{u"a"_s, u"First"_s}, Note{u"b"_s, u"Second"_s}))));
}

TEST_F(AppleNotesLibraryTest, AnswersWithTheFailure) {
    processes.result = {{}, u"No such file or directory"_s, -1};
    list();
    tasks.runAll();
    queue.runAll();
    EXPECT_THAT(answers, ElementsAre(VariantWith<ContentSourceError>(
                             ContentSourceError::scriptError(u"No such file or directory"_s))));
}

TEST_F(AppleNotesLibraryTest, AnswersNothingOnceItIsGone) {
    list();
    list();
    tasks.runNext();
    library.reset();
    tasks.runAll();
    queue.runAll();
    EXPECT_THAT(answers, IsEmpty());
    EXPECT_EQ(processes.calls.size(), 1U);
}

TEST_F(AppleNotesLibraryTest, OpensTheAutomationPage) {
    library->openAutomationPreferences();
    ASSERT_EQ(opener.opened.size(), 1U);
    EXPECT_EQ(opener.opened[0].toString(),
              u"x-apple.systempreferences:com.apple.preference.security?Privacy_Automation"_s);
}

} // namespace
} // namespace tessaline

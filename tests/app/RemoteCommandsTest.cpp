#include "app/RemoteCommands.h"

#include "AppDelegateFixture.h"
#include "prompter/PrompterWindow.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::IsEmpty;

class RemoteCommandsTest : public AppDelegateFixture {
protected:
    RemoteCommandsTest() { delegate->hidePrompterWindow(); }

    QString write(const QByteArray& bytes) {
        QFile file(folder.filePath(u"talk.md"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    RemoteAnswer answerTo(const RemoteRequest& request) {
        RemoteAnswer answer = Refusal{u"no answer"_s};
        commands->carryOut(request, [&](const RemoteAnswer& reply) { answer = reply; });
        scriptTasks.runAll();
        mainQueue.runAll();
        return answer;
    }

    /// Whether the status of a prompter that is shown came back.
    static bool isShown(const RemoteAnswer& answer) {
        const auto* status = std::get_if<PrompterStatus>(&answer);
        return status && status->visible;
    }

    QString refusalOf(const RemoteRequest& request) {
        const RemoteAnswer answer = answerTo(request);
        EXPECT_FALSE(prompter()->isVisible());
        const auto* refusal = std::get_if<Refusal>(&answer);
        return refusal ? refusal->reason : QString();
    }

    QTemporaryDir folder;
    std::unique_ptr<RemoteCommands> commands =
        std::make_unique<RemoteCommands>(launch(), scriptTasks, mainQueue);
};

TEST_F(RemoteCommandsTest, ShowBringsThePrompterBack) {
    EXPECT_TRUE(isShown(answerTo(ShowRequest{})));
    EXPECT_TRUE(prompter()->isVisible());
}

TEST_F(RemoteCommandsTest, OpenShowsTheFilesText) {
    EXPECT_TRUE(isShown(answerTo(OpenRequest{write("# Talk")})));
    EXPECT_TRUE(prompter()->isVisible());
    EXPECT_EQ(keptScript(), u"# Talk"_s);
}

TEST_F(RemoteCommandsTest, OpenReadsTheFileInTheBackgroundAndRepliesThen) {
    std::vector<RemoteAnswer> replies;
    commands->carryOut(OpenRequest{write("# Talk")},
                       [&](const RemoteAnswer& reply) { replies.push_back(reply); });
    mainQueue.runAll();
    EXPECT_EQ(keptScript(), QString());
    scriptTasks.runAll();
    EXPECT_FALSE(prompter()->isVisible());
    EXPECT_THAT(replies, IsEmpty());
    mainQueue.runAll();
    EXPECT_TRUE(prompter()->isVisible());
    ASSERT_EQ(replies.size(), 1u);
    EXPECT_TRUE(isShown(replies.front()));
}

TEST_F(RemoteCommandsTest, OpenShowsNothingOnceTheProgramEnds) {
    bool replied = false;
    commands->carryOut(OpenRequest{write("# Talk")}, [&](const RemoteAnswer&) { replied = true; });
    commands.reset();
    scriptTasks.runAll();
    mainQueue.runAll();
    EXPECT_FALSE(replied);
    EXPECT_EQ(keptScript(), QString());
}

TEST_F(RemoteCommandsTest, OpenFollowsTheFileIfWished) {
    EXPECT_TRUE(isShown(answerTo(OpenRequest{write("# Talk"), true})));
    write("# Another talk");
    timers.advance(0.5);
    fileTasks.runAll();
    mainQueue.runAll();
    EXPECT_EQ(keptScript(), u"# Another talk"_s);
}

TEST_F(RemoteCommandsTest, OpenOfAMissingFileChangesNothing) {
    EXPECT_EQ(refusalOf(OpenRequest{u"/nowhere/talk.md"_s}),
              u"cannot read /nowhere/talk.md: No such file or directory"_s);
    EXPECT_EQ(keptScript(), QString());
}

TEST_F(RemoteCommandsTest, OpenTakesNoRelativePath) {
    const QString refusal = u"cannot read %1: Not a path from the root"_s;
    EXPECT_EQ(refusalOf(OpenRequest{u"talk.md"_s}), refusal.arg(u"talk.md"_s));
    EXPECT_EQ(refusalOf(OpenRequest{}), refusal.arg(QString()));
}

TEST_F(RemoteCommandsTest, OpenTakesNothingThatIsNotAFile) {
    EXPECT_TRUE(refusalOf(OpenRequest{u"/dev/zero"_s}).contains(u"Not a regular file"));
    EXPECT_TRUE(refusalOf(OpenRequest{folder.path()}).contains(u"it is a folder"));
}

TEST_F(RemoteCommandsTest, OpenTakesOtherEncodingsButNothingThatIsNoText) {
    EXPECT_TRUE(refusalOf(OpenRequest{write(QByteArray("\0\1\2", 3))}).contains(u"not text"));
    EXPECT_TRUE(refusalOf(OpenRequest{write("caf\xe9"), true}).contains(u"UTF-8"));
    EXPECT_TRUE(isShown(answerTo(OpenRequest{write("caf\xe9")})));
    EXPECT_EQ(keptScript(), u"café"_s);
}

TEST_F(RemoteCommandsTest, OpenOfACopyIsNoFileOfTheUsers) {
    EXPECT_TRUE(isShown(answerTo(OpenRequest{write("# Talk"), false, true})));
    EXPECT_EQ(keptScript(), u"# Talk"_s);
    EXPECT_EQ(delegate->status().latest, QStringList());
}

} // namespace
} // namespace tessaline

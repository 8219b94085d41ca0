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
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RemoteCommandsTest : public AppDelegateFixture {
protected:
    RemoteCommandsTest() { delegate->hidePrompterWindow(); }

    QString write(const QByteArray& bytes) {
        QFile file(folder.filePath(u"talk.md"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    QJsonObject answerTo(const QJsonObject& message) {
        QJsonObject answer;
        commands->carryOut(message, [&](const QJsonObject& reply) { answer = reply; });
        scriptTasks.runAll();
        mainQueue.runAll();
        return answer;
    }

    QString errorOf(const QJsonObject& message) {
        const QJsonObject answer = answerTo(message);
        EXPECT_EQ(answer.value(u"ok"_s), QJsonValue(false));
        EXPECT_FALSE(prompter()->isVisible());
        return answer.value(u"error"_s).toString();
    }

    QTemporaryDir folder;
    FakeTaskRunner scriptTasks;
    std::unique_ptr<RemoteCommands> commands =
        std::make_unique<RemoteCommands>(launch(), scriptTasks, mainQueue);
    const QJsonObject success{{u"ok"_s, true}};
};

TEST_F(RemoteCommandsTest, ShowBringsThePrompterBack) {
    EXPECT_EQ(answerTo(RemoteCommands::show()), success);
    EXPECT_TRUE(prompter()->isVisible());
}

TEST_F(RemoteCommandsTest, OpenShowsTheFilesText) {
    EXPECT_EQ(answerTo(RemoteCommands::open(write("# Talk"), false)), success);
    EXPECT_TRUE(prompter()->isVisible());
    EXPECT_EQ(keptScript(), u"# Talk"_s);
}

TEST_F(RemoteCommandsTest, OpenReadsTheFileInTheBackgroundAndRepliesThen) {
    std::vector<QJsonObject> replies;
    commands->carryOut(RemoteCommands::open(write("# Talk"), false),
                       [&](const QJsonObject& reply) { replies.push_back(reply); });
    mainQueue.runAll();
    EXPECT_EQ(keptScript(), QString());
    scriptTasks.runAll();
    EXPECT_FALSE(prompter()->isVisible());
    EXPECT_THAT(replies, IsEmpty());
    mainQueue.runAll();
    EXPECT_TRUE(prompter()->isVisible());
    EXPECT_THAT(replies, ElementsAre(success));
}

TEST_F(RemoteCommandsTest, OpenShowsNothingOnceTheProgramEnds) {
    bool replied = false;
    commands->carryOut(RemoteCommands::open(write("# Talk"), false),
                       [&](const QJsonObject&) { replied = true; });
    commands.reset();
    scriptTasks.runAll();
    mainQueue.runAll();
    EXPECT_FALSE(replied);
    EXPECT_EQ(keptScript(), QString());
}

TEST_F(RemoteCommandsTest, OpenFollowsTheFileIfWished) {
    EXPECT_EQ(answerTo(RemoteCommands::open(write("# Talk"), true)), success);
    write("# Another talk");
    timers.advance(0.5);
    fileTasks.runAll();
    mainQueue.runAll();
    EXPECT_EQ(keptScript(), u"# Another talk"_s);
}

TEST_F(RemoteCommandsTest, OpenOfAMissingFileChangesNothing) {
    EXPECT_EQ(errorOf(RemoteCommands::open(u"/nowhere/talk.md"_s, false)),
              u"cannot read /nowhere/talk.md: No such file or directory"_s);
    EXPECT_EQ(keptScript(), QString());
}

TEST_F(RemoteCommandsTest, OpenTakesNoRelativePath) {
    const QString refusal = u"cannot read %1: Not a path from the root"_s;
    EXPECT_EQ(errorOf(RemoteCommands::open(u"talk.md"_s, false)), refusal.arg(u"talk.md"_s));
    EXPECT_EQ(errorOf({{u"command"_s, u"open"_s}, {u"path"_s, 7}}), refusal.arg(QString()));
}

TEST_F(RemoteCommandsTest, OpenTakesNothingThatIsNotAFile) {
    EXPECT_TRUE(
        errorOf(RemoteCommands::open(u"/dev/zero"_s, false)).contains(u"Not a regular file"));
    EXPECT_TRUE(
        errorOf(RemoteCommands::open(folder.path(), false)).contains(u"Not a regular file"));
}

TEST_F(RemoteCommandsTest, OpenTakesNoOtherEncoding) {
    EXPECT_TRUE(errorOf(RemoteCommands::open(write("\xff\xfe"), false)).contains(u"UTF-8"));
}

TEST_F(RemoteCommandsTest, NamesACommandThatThereIsNot) {
    EXPECT_EQ(errorOf({{u"command"_s, u"dance"_s}}), u"there is no command 'dance'"_s);
    EXPECT_EQ(errorOf({}), u"there is no command ''"_s);
    EXPECT_EQ(errorOf({{u"command"_s, QJsonObject()}}), u"there is no command ''"_s);
}

} // namespace
} // namespace tessaline

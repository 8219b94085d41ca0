#include "app/RemoteCommands.h"

#include "AppDelegateFixture.h"
#include "prompter/PrompterWindow.h"

#include <QFile>
#include <QTemporaryDir>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class RemoteCommandsTest : public AppDelegateFixture {
protected:
    RemoteCommandsTest() { delegate->hidePrompterWindow(); }

    QString write(const QByteArray& bytes) {
        QFile file(folder.filePath(u"talk.md"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    QString errorOf(const QJsonObject& message) {
        const QJsonObject answer = commands.carryOut(message);
        EXPECT_EQ(answer.value(u"ok"_s), QJsonValue(false));
        EXPECT_FALSE(prompter()->isVisible());
        return answer.value(u"error"_s).toString();
    }

    QTemporaryDir folder;
    RemoteCommands commands{launch()};
};

TEST_F(RemoteCommandsTest, ShowBringsThePrompterBack) {
    EXPECT_EQ(commands.carryOut(RemoteCommands::show()), (QJsonObject{{u"ok"_s, true}}));
    EXPECT_TRUE(prompter()->isVisible());
}

TEST_F(RemoteCommandsTest, OpenShowsTheFilesText) {
    const auto answer = commands.carryOut(RemoteCommands::open(write("# Talk"), false));
    EXPECT_EQ(answer, (QJsonObject{{u"ok"_s, true}}));
    EXPECT_TRUE(prompter()->isVisible());
    EXPECT_EQ(keptScript(), u"# Talk"_s);
}

TEST_F(RemoteCommandsTest, OpenOfAMissingFileChangesNothing) {
    EXPECT_TRUE(
        errorOf(RemoteCommands::open(u"/nowhere/talk.md"_s, false)).contains(u"cannot read"));
    EXPECT_EQ(keptScript(), QString());
}

TEST_F(RemoteCommandsTest, OpenTakesNoRelativePath) {
    EXPECT_TRUE(errorOf(RemoteCommands::open(u"talk.md"_s, false)).contains(u"Not a file"));
}

TEST_F(RemoteCommandsTest, OpenTakesNothingThatIsNotAFile) {
    EXPECT_TRUE(errorOf(RemoteCommands::open(u"/dev/zero"_s, false)).contains(u"Not a file"));
    EXPECT_TRUE(errorOf(RemoteCommands::open(folder.path(), false)).contains(u"Not a file"));
    EXPECT_TRUE(errorOf({{u"command"_s, u"open"_s}, {u"path"_s, 7}}).contains(u"Not a file"));
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

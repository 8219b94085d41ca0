#include "platform/linux/desktop/DesktopEntry.h"

#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

DesktopEntry withCommand(const QString& command) {
    DesktopEntry entry;
    entry.command = command;
    return entry;
}

TEST(DesktopEntryFile, IsReadFromItsMainGroupAlone) {
    const auto entry = DesktopEntry::parse("# a comment\n[Desktop Entry]\nType=Application\n"
                                           "Name=Obsidian\nName[de]=Obsidian\nExec=/bin/sh %U\r\n"
                                           " Icon = obsidian\n#Icon=no\nTryExec=sh\n"
                                           "[Desktop Action new]\nExec=/bin/other\nIcon=other\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->command, u"/bin/sh %U"_s);
    EXPECT_EQ(entry->icon, u"obsidian"_s);
    EXPECT_EQ(entry->tryExec, u"sh"_s);
    EXPECT_FALSE(entry->hidden);
}

TEST(DesktopEntryFile, MayHoldEscapes) {
    const auto entry =
        DesktopEntry::parse("[Desktop Entry]\nType=Application\nExec=\"/a\\sb\\\\\\\\c\" %U\n"
                            "Icon=/x\\ty\\qz\\\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->command, u"\"/a b\\\\c\" %U"_s);
    EXPECT_EQ(entry->icon, u"/x\ty\\qz\\"_s);
}

TEST(DesktopEntryFile, IsThatOfAnApplication) {
    EXPECT_EQ(DesktopEntry::parse(""), std::nullopt);
    EXPECT_EQ(DesktopEntry::parse("[Desktop Entry]\nType=Link\nExec=/bin/sh\n"), std::nullopt);
    EXPECT_EQ(DesktopEntry::parse("Type=Application\n[Other]\nType=Application\n"), std::nullopt);
    EXPECT_EQ(DesktopEntry::parse(QByteArray("\0\xFF\n=\n[", 6)), std::nullopt);
}

class DesktopEntryProgram : public ::testing::Test {
protected:
    /// Creates a file that can be executed.
    QString makeProgram(const QString& name) const {
        QString path = folder.filePath(name);
        putFile(path, "");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
        return path;
    }

    const QTemporaryDir folder;
};

TEST_F(DesktopEntryProgram, IsTheFirstWordOfTheCommand) {
    const QString path = makeProgram(u"obsidian"_s);
    EXPECT_EQ(withCommand(path).program(), path);
    EXPECT_EQ(withCommand(path + " --no-sandbox %U"_L1).program(), path);
    EXPECT_TRUE(withCommand(path).isInstalled());
}

TEST_F(DesktopEntryProgram, MayBeQuoted) {
    const QString path = makeProgram(u"my \"obsidian\""_s);
    const QString quoted = QString(path).replace(u'"', "\\\""_L1);
    EXPECT_EQ(withCommand(u'"' + quoted + "\" %U"_L1).program(), path);
}

TEST_F(DesktopEntryProgram, IsLookedUpOnTheSearchPath) {
    const QString path = makeProgram(u"tessaline-test-program"_s);
    const QByteArray previous = qgetenv("PATH");
    EXPECT_FALSE(withCommand(u"tessaline-test-program %U"_s).isInstalled());
    qputenv("PATH", folder.path().toUtf8());
    EXPECT_EQ(withCommand(u"tessaline-test-program %U"_s).program(), path);
    qputenv("PATH", previous);
}

TEST_F(DesktopEntryProgram, IsNotALauncher) {
    const QString env = makeProgram(u"env"_s);
    const QString flatpak = makeProgram(u"flatpak"_s);
    EXPECT_EQ(withCommand(env + " HINT=x /snap/bin/obsidian %U"_L1).program(), std::nullopt);
    EXPECT_TRUE(withCommand(env + " HINT=x /snap/bin/obsidian %U"_L1).isInstalled());
    EXPECT_EQ(withCommand(flatpak + " run md.obsidian.Obsidian @@u %U @@"_L1).program(),
              std::nullopt);
}

TEST_F(DesktopEntryProgram, IsNotInstalledWhereItIsMissingOrCannotBeExecuted) {
    const QString data = folder.filePath(u"data"_s);
    putFile(data, "");
    for (const QString& command : {folder.filePath(u"missing"_s), data, u""_s, u"\"\""_s}) {
        EXPECT_EQ(withCommand(command).program(), std::nullopt);
        EXPECT_FALSE(withCommand(command).isInstalled());
    }
}

TEST_F(DesktopEntryProgram, IsNotInstalledWhenTheEntrySaysSo) {
    DesktopEntry entry = withCommand(makeProgram(u"obsidian"_s));
    entry.tryExec = folder.filePath(u"missing"_s);
    EXPECT_FALSE(entry.isInstalled());
    entry.tryExec = makeProgram(u"other"_s);
    EXPECT_TRUE(entry.isInstalled());
    entry.hidden = true;
    EXPECT_FALSE(entry.isInstalled());
}

} // namespace
} // namespace tessaline

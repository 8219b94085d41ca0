#include "platform/linux/desktop/DesktopEntries.h"
#include "platform/linux/desktop/DesktopApplicationLookup.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <map>
#include <string>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;

namespace tessaline {
namespace {

class DesktopEntriesTest : public ::testing::Test {
protected:
    /// Creates an entry in one of the data folders, and the program that it starts.
    QString putEntry(const QString& dataFolder, const QString& name) const {
        QString program = folder.filePath("bin/"_L1 + dataFolder + u'-' + name + ".program"_L1);
        QDir().mkpath(folder.filePath(u"bin"_s));
        putFile(program, "");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
        putEntryText(dataFolder, name, "Exec=" + program.toUtf8());
        return program;
    }

    QString putEntryText(const QString& dataFolder, const QString& name,
                         const QByteArray& lines) const {
        QString path = folder.filePath(dataFolder + "/applications/"_L1 + name);
        QDir().mkpath(QFileInfo(path).path());
        putFile(path, "[Desktop Entry]\nType=Application\n" + lines + '\n');
        return path;
    }

    QStringList pathsOf(const QString& bundleIdentifier) const {
        return lookup.applicationPaths(bundleIdentifier);
    }

    const QTemporaryDir folder;
    const DesktopEntries entries{{folder.filePath(u"user"_s), folder.filePath(u"system"_s)}};
    const DesktopApplicationLookup lookup{entries};
};

class ObsidianEntryNames : public DesktopEntriesTest,
                           public ::testing::WithParamInterface<const char*> {};

TEST_P(ObsidianEntryNames, AreFound) {
    const QString program = putEntry(u"system"_s, QString::fromUtf8(GetParam()));
    EXPECT_EQ(pathsOf(u"md.obsidian"_s), QStringList{program});
    EXPECT_EQ(lookup.workspaceApplicationPath(u"md.obsidian"_s), program);
}

INSTANTIATE_TEST_SUITE_P(Such, ObsidianEntryNames,
                         ::testing::Values("obsidian.desktop", "Obsidian.desktop",
                                           "md.obsidian.Obsidian.desktop", "md.obsidian.desktop",
                                           "obsidian_obsidian.desktop",
                                           "appimagekit_0123456789abcdef-Obsidian.desktop"),
                         byValue);

TEST_F(DesktopEntriesTest, DoNotTakeOneApplicationForAnother) {
    for (const char* name :
         {"obsidian-export.desktop", "my-obsidian.desktop", "md.obsidianx.desktop",
          "org.md.obsidian.desktop", "obsidian.desktop.bak", "md.desktop", "obs.desktop"})
        putEntry(u"system"_s, QString::fromUtf8(name));
    EXPECT_EQ(pathsOf(u"md.obsidian"_s), QStringList());
    EXPECT_EQ(lookup.workspaceApplicationPath(u"md.obsidian"_s), std::nullopt);
}

TEST_F(DesktopEntriesTest, PreferTheUsersFolder) {
    const QString system = putEntry(u"system"_s, u"md.obsidian.Obsidian.desktop"_s);
    const QString user = putEntry(u"user"_s, u"obsidian.desktop"_s);
    EXPECT_EQ(pathsOf(u"md.obsidian"_s), (QStringList{user, system}));
}

TEST_F(DesktopEntriesTest, AreHiddenByOthersOfTheSameName) {
    putEntry(u"system"_s, u"obsidian.desktop"_s);
    putEntryText(u"user"_s, u"obsidian.desktop"_s, "Hidden=true");
    EXPECT_EQ(pathsOf(u"md.obsidian"_s), QStringList());
}

TEST_F(DesktopEntriesTest, MayLieInSubfolders) {
    const QString path =
        putEntryText(u"system"_s, u"appimagekit_0/Obsidian.desktop"_s, "Exec=/usr/bin/env x");
    EXPECT_EQ(pathsOf(u"md.obsidian"_s), QStringList{path});
}

TEST_F(DesktopEntriesTest, StandForApplicationsThatALauncherStarts) {
    const QString path = putEntryText(u"system"_s, u"obsidian_obsidian.desktop"_s,
                                      "Exec=env BAMF_DESKTOP_FILE_HINT=x /snap/bin/obsidian %U");
    EXPECT_EQ(pathsOf(u"md.obsidian"_s), QStringList{path});
}

TEST_F(DesktopEntriesTest, AreLeftOutWhenTheirProgramIsGone) {
    putEntryText(u"system"_s, u"obsidian.desktop"_s, "Exec=/missing/obsidian %U");
    EXPECT_EQ(pathsOf(u"md.obsidian"_s), QStringList());
}

TEST_F(DesktopEntriesTest, AreLeftOutWhenTheyCannotBeRead) {
    const QString path = putEntryText(u"system"_s, u"obsidian.desktop"_s, "Exec=/usr/bin/env x");
    putFile(path,
            "[Desktop Entry]\nType=Application\nExec=/usr/bin/env\n#" + QByteArray(1 << 20, 'x'));
    EXPECT_EQ(pathsOf(u"md.obsidian"_s), QStringList());
}

TEST_F(DesktopEntriesTest, AreFoundByTheirPathAndByTheirProgram) {
    const QString program = putEntry(u"user"_s, u"obsidian.desktop"_s);
    const QString file = folder.filePath(u"user/applications/obsidian.desktop"_s);
    ASSERT_TRUE(entries.atPath(program));
    EXPECT_EQ(entries.atPath(program)->file, file);
    ASSERT_TRUE(entries.atPath(file));
    EXPECT_EQ(entries.atPath(file)->applicationPath(), program);
    EXPECT_FALSE(entries.atPath(folder.filePath(u"other"_s)));
    EXPECT_FALSE(entries.atPath(folder.filePath(u"missing.desktop"_s)));
}

class StandardFolders : public ::testing::Test {
protected:
    QStringList folders() const {
        return DesktopEntries::standardFolders([this](const char* name) {
            const auto entry = environment.find(name);
            return entry == environment.end() ? QString() : entry->second;
        });
    }

    std::map<std::string, QString> environment;
    const QString home = QDir::homePath();
};

TEST_F(StandardFolders, AreTheUsualOnesWithoutAnEnvironment) {
    EXPECT_THAT(folders(),
                ElementsAre(home + "/.local/share"_L1, u"/usr/local/share"_s, u"/usr/share"_s,
                            home + "/.local/share/flatpak/exports/share"_L1,
                            u"/var/lib/flatpak/exports/share"_s, u"/var/lib/snapd/desktop"_s));
}

TEST_F(StandardFolders, FollowTheEnvironment) {
    environment = {{"XDG_DATA_HOME", u"/mine"_s},
                   {"XDG_DATA_DIRS", u"/one/:relative::/var/lib/snapd/desktop:/mine"_s}};
    EXPECT_THAT(folders(), ElementsAre(u"/mine"_s, u"/one"_s, u"/var/lib/snapd/desktop"_s,
                                       home + "/.local/share/flatpak/exports/share"_L1,
                                       u"/var/lib/flatpak/exports/share"_s));
}

} // namespace
} // namespace tessaline

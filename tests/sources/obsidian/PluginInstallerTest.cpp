#include "sources/obsidian/PluginInstaller.h"

#include "sources/obsidian/ObsidianHome.h"
#include "sources/obsidian/VaultRegistry.h"
#include "support/CaseName.h"
#include "support/FakeFolderChooser.h"
#include "support/OrdinaryUser.h"
#include "support/PrintQt.h"
#include "support/SmallDisk.h"

#include <QFileInfo>

#include <gmock/gmock.h>

#include <cstdio>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

const auto accessNeeded = u"Tessaline needs access to your Obsidian vault to install the plugin. "
                          "Please try again and select the vault folder when prompted."_s;

class PluginInstallerTest : public ::testing::Test {
protected:
    PluginInstaller::Result install() {
        const VaultRegistry registry(home.path());
        return PluginInstaller(registry, home.bundle, chooser).install();
    }

    /// Makes every attempt fail, also for the superuser: a file stands where a folder is needed.
    void obstruct() {
        QDir().mkpath(home.vault + "/.obsidian"_L1);
        putFile(obstacle(), "in the way");
    }

    QString obstacle() const { return home.vault + "/.obsidian/plugins"_L1; }

    /// Nothing was installed because of what happened to this file or folder.
    static PluginInstaller::Result failed(const QString& path, const char* reason) {
        return {false, "Failed to install plugin: "_L1 + path + ": "_L1 + QLatin1String(reason)};
    }

    QString program() const { return home.pluginFolder() + "/main.js"_L1; }

    void expectInstalled() const {
        EXPECT_EQ(fileBytes(home.pluginFolder() + "/main.js"_L1), "the program");
        EXPECT_EQ(fileBytes(home.pluginFolder() + "/manifest.json"_L1), "the manifest");
    }

    ObsidianHome home;
    FakeFolderChooser chooser;
    const PluginInstaller::Result success{
        true, u"Plugin installed in \"My Vault\".\nRestart Obsidian to activate it."_s};
    const PluginInstaller::Result obstructed = failed(home.pluginFolder(), "Not a directory");
};

TEST_F(PluginInstallerTest, InstallsAndEnablesWithoutAsking) {
    EXPECT_EQ(install(), success);
    expectInstalled();
    EXPECT_EQ(fileBytes(home.communityList()), "[\n  \"obsidian-tessaline\"\n]");
    EXPECT_THAT(chooser.questions, ::testing::IsEmpty());
    EXPECT_EQ(
        QDir(home.pluginFolder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        (QStringList{u"main.js"_s, u"manifest.json"_s}));
}

TEST_F(PluginInstallerTest, ReplacesBothFilesOfAnEarlierInstallation) {
    EXPECT_EQ(install(), success);
    putFile(home.pluginFolder() + "/main.js"_L1, "an old program, and a longer one");
    putFile(home.pluginFolder() + "/manifest.json"_L1, "old");
    putFile(home.pluginFolder() + "/data.json"_L1, "the plug-in's settings");
    EXPECT_EQ(install(), success);
    expectInstalled();
    EXPECT_EQ(fileBytes(home.pluginFolder() + "/data.json"_L1), "the plug-in's settings");
}

TEST_F(PluginInstallerTest, NeedsTheProgramsResources) {
    home.bundle.resources = std::nullopt;
    EXPECT_EQ(install(), (PluginInstaller::Result{false, u"Could not find app resources."_s}));
}

TEST_F(PluginInstallerTest, NeedsThePluginAmongTheResources) {
    home.bundle.resources = home.path();
    home.putRegistry("");
    EXPECT_EQ(install(), (PluginInstaller::Result{false, u"Plugin source not found."_s}));
}

TEST_F(PluginInstallerTest, NeedsAVault) {
    home.putRegistry(R"({"vaults":{}})");
    EXPECT_EQ(install(), (PluginInstaller::Result{
                             false, u"Could not find an Obsidian vault. Make sure Obsidian is "
                                    "installed and has at least one vault."_s}));
    EXPECT_THAT(chooser.questions, ::testing::IsEmpty());
}

TEST_F(PluginInstallerTest, AsksForAccessToAVaultThatIsNotWritable) {
    ASSERT_TRUE(QDir(home.vault).removeRecursively());
    EXPECT_EQ(install(), (PluginInstaller::Result{false, accessNeeded}));
    ASSERT_EQ(chooser.questions.size(), 1U);
    EXPECT_EQ(chooser.questions[0].title, u"Grant Access to Obsidian Vault"_s);
    EXPECT_EQ(chooser.questions[0].message,
              u"Tessaline needs access to your Obsidian vault to install the plugin.\n"
              "Please select your vault folder."_s);
    EXPECT_EQ(chooser.questions[0].startFolder, home.vault);
    EXPECT_FALSE(QFileInfo::exists(home.vault));
}

TEST_F(PluginInstallerTest, CreatesTheFoldersOnceAccessIsGranted) {
    ASSERT_TRUE(QDir(home.vault + "/.obsidian"_L1).removeRecursively());
    chooser.answer = home.vault;
    EXPECT_EQ(install(), success);
    EXPECT_EQ(chooser.questions.size(), 1U);
    expectInstalled();
}

TEST_F(PluginInstallerTest, AsksAfterAFailureAndTellsWhyWhenAccessIsRefused) {
    obstruct();
    EXPECT_EQ(install(), obstructed);
    EXPECT_EQ(chooser.questions.size(), 1U);
}

TEST_F(PluginInstallerTest, TriesOnceMoreWhenAccessIsGranted) {
    obstruct();
    chooser.answer = home.vault;
    chooser.whileShown = [this] { QFile::remove(obstacle()); };
    EXPECT_EQ(install(), success);
    EXPECT_EQ(chooser.questions.size(), 1U);
    expectInstalled();
}

TEST_F(PluginInstallerTest, DoesNotTryAThirdTime) {
    obstruct();
    chooser.answer = home.vault;
    EXPECT_EQ(install(), obstructed);
    EXPECT_EQ(chooser.questions.size(), 1U);
}

TEST_F(PluginInstallerTest, DescribesTheFailureOfTheSecondAttempt) {
    obstruct();
    chooser.answer = home.vault;
    chooser.whileShown = [this] {
        QFile::remove(obstacle());
        QDir().mkpath(home.pluginFolder() + "/main.js/folder"_L1);
    };
    EXPECT_EQ(install(), failed(program(), "Is a directory"));
}

TEST_F(PluginInstallerTest, MayAskBeforeTheFirstAttemptAndAfterIt) {
    ASSERT_TRUE(QDir(home.vault + "/.obsidian"_L1).removeRecursively());
    chooser.answer = home.vault;
    chooser.whileShown = [this] { obstruct(); };
    EXPECT_EQ(install(), obstructed);
    EXPECT_EQ(chooser.questions.size(), 2U);
}

TEST_F(PluginInstallerTest, MissesTheManifestAfterCopyingTheProgram) {
    ASSERT_TRUE(QFile::remove(home.pluginSource() + "/manifest.json"_L1));
    EXPECT_EQ(install(),
              (PluginInstaller::Result{false, u"Source file not found: manifest.json"_s}));
    EXPECT_EQ(fileBytes(home.pluginFolder() + "/main.js"_L1), "the program");
    EXPECT_FALSE(QFileInfo::exists(home.communityList()));
    EXPECT_THAT(chooser.questions, ::testing::IsEmpty());
}

TEST_F(PluginInstallerTest, MissesTheProgramFirst) {
    ASSERT_TRUE(QFile::remove(home.pluginSource() + "/main.js"_L1));
    ASSERT_TRUE(QFile::remove(home.pluginSource() + "/manifest.json"_L1));
    EXPECT_EQ(install(), (PluginInstaller::Result{false, u"Source file not found: main.js"_s}));
}

TEST_F(PluginInstallerTest, SucceedsWithAWarningWhenTheListIsNotOneOfStrings) {
    putFile(home.communityList(), "[1]");
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(install(), success);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(),
              "Warning: Could not enable plugin in config: The list of plug-ins is not a JSON "
              "array of strings\n");
    EXPECT_EQ(fileBytes(home.communityList()), "[1]");
    expectInstalled();
}

TEST_F(PluginInstallerTest, PrintsNothingOtherwise) {
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(install(), success);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
}

TEST_F(PluginInstallerTest, FollowsAVaultThatIsALink) {
    const QString link = home.path() + "/Linked"_L1;
    ASSERT_TRUE(QFile::link(home.vault, link));
    home.useVault(link);
    EXPECT_EQ(install().message,
              u"Plugin installed in \"Linked\".\nRestart Obsidian to activate it."_s);
    expectInstalled();
}

TEST_F(PluginInstallerTest, NamesAVaultWhosePathEndsWithASlash) {
    home.useVault(home.vault + u'/');
    EXPECT_EQ(install(), success);
    expectInstalled();
}

class PluginInstallerVaultNames : public ::testing::TestWithParam<const char*> {};

TEST_P(PluginInstallerVaultNames, AreTakenAsTheyAre) {
    const QString name = QString::fromUtf8(GetParam());
    ObsidianHome home(name);
    FakeFolderChooser chooser;
    const VaultRegistry registry(home.path());
    EXPECT_EQ(PluginInstaller(registry, home.bundle, chooser).install(),
              (PluginInstaller::Result{true, "Plugin installed in \""_L1 + name +
                                                 "\".\nRestart Obsidian to activate it."_L1}));
    EXPECT_EQ(fileBytes(home.pluginFolder() + "/main.js"_L1), "the program");
}

INSTANTIATE_TEST_SUITE_P(Such, PluginInstallerVaultNames,
                         ::testing::Values("two words", "it's \"mine\"", "Übung メモ 📝",
                                           "back\\slash", "100% %1", ".hidden", "a.b", "$HOME;*"),
                         byValue);

TEST_F(PluginInstallerTest, ReportsAFullDiskAndLeavesNoHalfFile) {
    const SmallDisk disk(home.vault);
    if (!disk.exists())
        GTEST_SKIP() << "mounting a small disk needs more rights than this user has";
    EXPECT_TRUE(QDir().mkpath(home.pluginFolder()));
    putFile(home.pluginFolder() + "/main.js"_L1, "old");
    putFile(home.pluginSource() + "/main.js"_L1, QByteArray(100'000, 'x'));
    EXPECT_EQ(install(), failed(program(), "No space left on device"));
    EXPECT_EQ(fileBytes(home.pluginFolder() + "/main.js"_L1), "old");
    EXPECT_EQ(
        QDir(home.pluginFolder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{u"main.js"_s});
}

/// Permissions do not bind the superuser: what is about them runs in a child process, which gives
/// such powers up, and ends with 0 when the installation came to what was expected.
class PluginInstallerAsOrdinaryUser : public PluginInstallerTest {
protected:
    PluginInstallerAsOrdinaryUser() { QFile::setPermissions(home.path(), everything); }
    ~PluginInstallerAsOrdinaryUser() override {
        QFile::setPermissions(home.vault + "/.obsidian"_L1, everything);
        QFile::setPermissions(home.pluginFolder(), everything);
    }

    [[noreturn]] void installAndExpect(const PluginInstaller::Result& expected,
                                       std::size_t questions) {
        becomeOrdinaryUser();
        const auto result = install();
        std::fputs(result.message.toUtf8().constData(), stderr);
        ::_exit(result == expected && chooser.questions.size() == questions ? 0 : 1);
    }

    static constexpr auto readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther |
                                     QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    static constexpr auto everything =
        readable | QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
};

TEST_F(PluginInstallerAsOrdinaryUser, AsksBeforeItTouchesAReadOnlyVault) {
    QFile::setPermissions(home.vault + "/.obsidian"_L1, readable);
    EXPECT_EXIT(installAndExpect({false, accessNeeded}, 1), ::testing::ExitedWithCode(0), "");
    EXPECT_FALSE(QFileInfo::exists(home.vault + "/.obsidian/plugins"_L1));
}

TEST_F(PluginInstallerAsOrdinaryUser, FailsInAVaultThatStaysReadOnly) {
    QFile::setPermissions(home.vault + "/.obsidian"_L1, readable);
    chooser.answer = home.vault;
    EXPECT_EXIT(installAndExpect(failed(home.pluginFolder(), "Permission denied"), 2),
                ::testing::ExitedWithCode(0), "");
}

TEST_F(PluginInstallerAsOrdinaryUser, FailsWhereThePluginsFolderIsReadOnly) {
    QFile::setPermissions(home.vault + "/.obsidian"_L1, everything);
    ASSERT_TRUE(QDir().mkpath(home.pluginFolder()));
    putFile(home.pluginFolder() + "/main.js"_L1, "old");
    QFile::setPermissions(home.pluginFolder(), readable);
    EXPECT_EXIT(installAndExpect(failed(program(), "Permission denied"), 1),
                ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(fileBytes(home.pluginFolder() + "/main.js"_L1), "old");
}

} // namespace
} // namespace tessaline

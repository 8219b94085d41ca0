#include "sources/obsidian/CommunityPlugins.h"

#include "sources/obsidian/ObsidianHome.h"
#include "support/CaseName.h"
#include "support/NotAFile.h"
#include "support/PrintQt.h"
#include "support/SmallDisk.h"

#include <QFileInfo>

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

class CommunityPluginsTest : public ::testing::Test {
protected:
    /// Enables the plug-in; returns why it could not, or nothing.
    QString enable() {
        QString error;
        const bool done = plugins.enable(u"obsidian-tessaline"_s, &error);
        EXPECT_EQ(done, error.isEmpty());
        return error;
    }

    bool contain() const { return plugins.contain(u"obsidian-tessaline"_s); }

    const ObsidianHome home;
    const QString path = home.communityList();
    const CommunityPlugins plugins{home.vault};
};

TEST_F(CommunityPluginsTest, AreMadeWhereThereIsNoList) {
    EXPECT_FALSE(contain());
    EXPECT_EQ(enable(), QString());
    EXPECT_EQ(fileBytes(path), "[\n  \"obsidian-tessaline\"\n]");
    EXPECT_TRUE(contain());
}

TEST_F(CommunityPluginsTest, GetANewOneAtTheEnd) {
    putFile(path, R"(["a"])");
    EXPECT_FALSE(contain());
    EXPECT_EQ(enable(), QString());
    EXPECT_EQ(fileBytes(path), "[\n  \"a\",\n  \"obsidian-tessaline\"\n]");
    EXPECT_TRUE(contain());
}

TEST_F(CommunityPluginsTest, KeepTheirOrderAndEveryCharacter) {
    putFile(path, R"( ["z", "a", "z", "über \"x\" \u0001 メモ", "Obsidian-Tessaline"] )");
    EXPECT_EQ(enable(), QString());
    EXPECT_EQ(fileBytes(path),
              "[\n  \"z\",\n  \"a\",\n  \"z\",\n  \"über \\\"x\\\" \\u0001 メモ\",\n"
              "  \"Obsidian-Tessaline\",\n  \"obsidian-tessaline\"\n]");
}

TEST_F(CommunityPluginsTest, KeepEveryByteWhenTheyHoldItAlready) {
    const QByteArray bytes = "\r\n[\"b\",\t\"obsidian-tessal\\u0069ne\" ,\"a\"]\n\n";
    putFile(path, bytes);
    EXPECT_TRUE(contain());
    const QFileInfo before(path);
    EXPECT_EQ(enable(), QString());
    EXPECT_EQ(fileBytes(path), bytes);
    EXPECT_EQ(QFileInfo(path).lastModified(), before.lastModified());
}

TEST_F(CommunityPluginsTest, AreWrittenWhereALinkLeads) {
    const QString target = home.path() + "/elsewhere.json"_L1;
    putFile(target, "[]");
    ASSERT_TRUE(QFile::link(target, path));
    EXPECT_EQ(enable(), QString());
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(fileBytes(target), "[\n  \"obsidian-tessaline\"\n]");
}

class OtherCommunityList : public CommunityPluginsTest,
                           public ::testing::WithParamInterface<const char*> {};

TEST_P(OtherCommunityList, IsLeftAlone) {
    putFile(path, GetParam());
    EXPECT_FALSE(contain());
    EXPECT_EQ(enable(), u"The list of plug-ins is not a JSON array of strings"_s);
    EXPECT_EQ(fileBytes(path), GetParam());
}

TEST_F(CommunityPluginsTest, AreLeftAloneWhenSomethingFollowsTheList) {
    const QByteArray list = R"(["obsidian-tessaline"])";
    for (const QByteArray& bytes : {list + '\0', list + '\0' + list}) {
        putFile(path, bytes);
        EXPECT_FALSE(contain());
        EXPECT_EQ(enable(), u"The list of plug-ins is not a JSON array of strings"_s);
        EXPECT_EQ(fileBytes(path), bytes);
    }
}

INSTANTIATE_TEST_SUITE_P(Such, OtherCommunityList,
                         ::testing::Values("", "null", "{}", R"({"obsidian-tessaline":true})",
                                           R"(["obsidian-tessaline")", R"(["obsidian-tessaline",])",
                                           R"(["obsidian-tessaline",1])",
                                           R"(["obsidian-tessaline",["a"]])",
                                           R"(["obsidian-tessaline",1e400])",
                                           R"(["obsidian-tessaline","\ud83c"])",
                                           R"("obsidian-tessaline")", "[\"\xFF\"]"),
                         byValue);

TEST_F(CommunityPluginsTest, MayBeAListThatNestsDeeply) {
    const QByteArray bytes = QByteArray(100'000, '[') + QByteArray(100'000, ']');
    putFile(path, bytes);
    EXPECT_FALSE(contain());
    EXPECT_NE(enable(), QString());
    EXPECT_EQ(fileBytes(path), bytes);
}

TEST_F(CommunityPluginsTest, AreLeftAloneWhenTheListIsHuge) {
    const QByteArray bytes = "[\"obsidian-tessaline\"" + QByteArray(16 << 20, ' ') + "]";
    putFile(path, bytes);
    EXPECT_FALSE(contain());
    EXPECT_EQ(enable(), u"The file is larger than 16777216 bytes"_s);
    EXPECT_EQ(fileBytes(path), bytes);
}

TEST_F(CommunityPluginsTest, FailWhereAFolderOrAFifoIs) {
    for (const NotAFile what : {NotAFile::folder, NotAFile::fifo}) {
        placeNotAFile(what, path);
        EXPECT_FALSE(contain());
        EXPECT_EQ(enable(), u"Not a regular file"_s);
        QFileInfo(path).isDir() ? QDir().rmdir(path) : QFile::remove(path);
    }
}

TEST_F(CommunityPluginsTest, KeepTheOldListOnAFullDisk) {
    const SmallDisk disk(home.vault + "/.obsidian"_L1);
    if (!disk.exists())
        GTEST_SKIP() << "mounting a small disk needs more rights than this user has";
    putFile(path, "[]");
    disk.fill();
    EXPECT_EQ(enable(), u"No space left on device"_s);
    EXPECT_EQ(fileBytes(path), "[]");
}

} // namespace
} // namespace tessaline

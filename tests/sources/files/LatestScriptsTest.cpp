#include "sources/files/LatestScripts.h"

#include "settings/FilePath.h"
#include "support/FakeTaskRunner.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LatestScriptsTest : public testing::Test {
protected:
    std::vector<QString> paths(const LatestScripts& scripts) {
        std::vector<QString> found;
        for (const LatestScript& script : scripts.all())
            found.push_back(script.path);
        return found;
    }

    /// What the next start would find.
    std::vector<LatestScript> kept() {
        tasks.runAll();
        return LatestScripts(tasks, path).all();
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"latest.json"_s);
    FakeTaskRunner tasks;
    LatestScripts latest{tasks, path};
};

TEST_F(LatestScriptsTest, AreNoneAndNoFileAtFirst) {
    EXPECT_THAT(latest.all(), IsEmpty());
    latest.clear();
    tasks.runAll();
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(LatestScriptsTest, AreTenWithTheVeryLastOneFirst) {
    for (int i = 0; i < 12; ++i)
        latest.add(u"/talks/%1.md"_s.arg(i));
    latest.add(u"/talks/5.md"_s);
    EXPECT_EQ(latest.all().size(), LatestScripts::most);
    EXPECT_EQ(paths(latest)[0], u"/talks/5.md"_s);
    EXPECT_EQ(paths(latest)[1], u"/talks/11.md"_s);
    EXPECT_EQ(kept(), latest.all());
}

TEST_F(LatestScriptsTest, AreSavedInTheBackgroundAndAtTheEnd) {
    latest.add(u"/a.md"_s);
    EXPECT_FALSE(QFileInfo::exists(path));
    latest.add(u"/b.md"_s);
    latest.finishSaving();
    const QByteArray bytes = fileBytes(path);
    tasks.runAll(); // too late to matter
    EXPECT_EQ(fileBytes(path), bytes);
    EXPECT_THAT(paths(LatestScripts(tasks, path)), ElementsAre(u"/b.md"_s, u"/a.md"_s));
}

TEST_F(LatestScriptsTest, AreNobodyElsesBusiness) {
    latest.add(u"/a.md"_s);
    tasks.runAll();
    const auto others = QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
    EXPECT_EQ(QFileInfo(path).permissions() & others, QFile::Permissions());
}

TEST_F(LatestScriptsTest, KeepTheirPlacesWhenTheyAreOpenedAgain) {
    latest.add(u"/a.md"_s);
    latest.add(u"/b.md"_s);
    const LatestScript known{.path = u"/a.md"_s, .hash = 4e9, .length = 1000, .place = 250};
    latest.update(known);
    latest.update({.path = u"/nobody.md"_s});
    latest.add(u"/a.md"_s);
    EXPECT_EQ(latest.all().front(), known);
    EXPECT_EQ(latest.all().size(), 2u);
    EXPECT_EQ(kept(), latest.all());
    latest.clear();
    EXPECT_THAT(kept(), IsEmpty());
}

TEST_F(LatestScriptsTest, LeaveOutWhatNoFileCanName) {
    latest.add(pathText("/caf\xE9.md"));
    latest.add(u"/"_s + u"a"_s.repeated(1000));
    latest.add(u"relative.md"_s);
    EXPECT_THAT(latest.all(), IsEmpty());
}

TEST_F(LatestScriptsTest, SurviveAFileThatCannotBeUsed) {
    for (const QByteArray& bytes :
         {"{"_ba, R"({"scripts": 5})"_ba, R"({"scripts": [{"path": "/a.md"}]})"_ba, "[]"_ba}) {
        putFile(path, bytes);
        LatestScripts found(tasks, path);
        EXPECT_THAT(found.all(), IsEmpty()) << bytes.constData();
    }
    EXPECT_EQ(fileBytes(path + u".unreadable"_s), "{");
}

TEST_F(LatestScriptsTest, KeepWhatANewerVersionWrote) {
    putFile(path, R"({"pinned": ["/x.md"]})");
    LatestScripts found(tasks, path);
    found.add(u"/a.md"_s);
    tasks.runAll();
    EXPECT_TRUE(fileBytes(path).contains("pinned"));
}

TEST(LatestScript, HasItsPlaceInTheSameTextAndInOneLikeIt) {
    const quint32 hash = hashOf(u"a text");
    const LatestScript script{.path = {}, .hash = double(hash), .length = 1000, .place = 500};
    EXPECT_EQ(placeIn(script, hash, 1000), 500);
    EXPECT_EQ(placeIn(script, hash + 1, 1000), 500);
    EXPECT_EQ(placeIn(script, hash + 1, 1080), 540);
    EXPECT_EQ(placeIn(script, hash + 1, 1200), std::nullopt);
    EXPECT_EQ(placeIn(script, hash, 400), std::nullopt);
    EXPECT_EQ(placeIn({.path = {}, .hash = double(hash), .length = 1000}, hash, 1000),
              std::nullopt);
}

TEST(LatestScript, IsCalledByItsNameAndWhereThatIsNotEnoughByItsFolder) {
    EXPECT_THAT(titlesOf({{.path = u"/a/talk.md"_s},
                          {.path = u"/b/talk.md"_s},
                          {.path = u"/a/notes.md"_s},
                          {.path = u"/x/y/plan.md"_s},
                          {.path = u"/z/y/plan.md"_s}}),
                ElementsAre(u"talk.md — a"_s, u"talk.md — b"_s, u"notes.md"_s, u"plan.md — /x/y"_s,
                            u"plan.md — /z/y"_s));
}

} // namespace
} // namespace tessaline

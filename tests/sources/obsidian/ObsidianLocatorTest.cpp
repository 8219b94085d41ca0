#include "sources/obsidian/ObsidianLocator.h"

#include "support/FakeApplicationLookup.h"
#include "support/PrintQt.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

class ObsidianLocatorTest : public ::testing::Test {
protected:
    std::optional<QString> locate() const { return locateObsidian(lookup, home.path()); }

    QTemporaryDir home;
    const QString inHome = home.filePath(u"Applications/Obsidian.app"_s);
    FakeApplicationLookup lookup;
};

TEST_F(ObsidianLocatorTest, PrefersTheFirstOfTheListedApplications) {
    ASSERT_TRUE(QDir().mkpath(inHome));
    lookup.paths = {u"/first"_s, u"/second"_s};
    lookup.workspacePath = u"/workspace"_s;
    EXPECT_EQ(locate(), u"/first"_s);
    EXPECT_EQ(lookup.askedFor, QStringList{u"md.obsidian"_s});
}

TEST_F(ObsidianLocatorTest, LooksAtUsualPlacesNext) {
    ASSERT_TRUE(QDir().mkpath(inHome));
    lookup.workspacePath = u"/workspace"_s;
    EXPECT_EQ(locate(), inHome);
}

TEST_F(ObsidianLocatorTest, LooksAtTheUsualPlacesInTheirOrder) {
    const QStringList places = {u"/Applications/Obsidian.app"_s, inHome,
                                u"/opt/homebrew-cask/Caskroom/obsidian"_s};
    for (qsizetype first = 0; first <= places.size(); ++first) {
        QStringList asked;
        const auto found = locateObsidian(lookup, home.path(), [&](const QString& place) {
            asked << place;
            return places.mid(first).contains(place);
        });
        EXPECT_EQ(found.value_or(QString()), places.value(first));
        EXPECT_EQ(asked, places.first(std::min(first + 1, places.size())));
    }
}

TEST_F(ObsidianLocatorTest, AsksTheWorkspaceLast) {
    lookup.workspacePath = u"/workspace"_s;
    EXPECT_EQ(locate(), u"/workspace"_s);
    EXPECT_EQ(lookup.askedFor, (QStringList{u"md.obsidian"_s, u"md.obsidian"_s}));
}

TEST_F(ObsidianLocatorTest, FindsNothingWhereObsidianIsNotInstalled) {
    EXPECT_EQ(locate(), std::nullopt);
}

} // namespace
} // namespace tessaline

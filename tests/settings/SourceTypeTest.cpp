#include "settings/SourceType.h"

#include <QSet>

#include <gmock/gmock.h>

#include <set>
#include <unordered_set>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;

TEST(SourceType, ListsAllCasesInDeclarationOrder) {
    EXPECT_THAT(allSourceTypes,
                ElementsAre(SourceType::obsidian, SourceType::appleNotes, SourceType::clipboard));
}

TEST(SourceType, OffersObsidianThenClipboardAndNotAppleNotes) {
    EXPECT_THAT(availableSources, ElementsAre(SourceType::obsidian, SourceType::clipboard));
}

TEST(SourceType, HasRawValues) {
    EXPECT_EQ(rawValue(SourceType::obsidian), u"obsidian"_s);
    EXPECT_EQ(rawValue(SourceType::appleNotes), u"appleNotes"_s);
    EXPECT_EQ(rawValue(SourceType::clipboard), u"clipboard"_s);
}

TEST(SourceType, HasDisplayNames) {
    EXPECT_EQ(displayName(SourceType::obsidian), u"Obsidian"_s);
    EXPECT_EQ(displayName(SourceType::appleNotes), u"Apple Notes"_s);
    EXPECT_EQ(displayName(SourceType::clipboard), u"Clipboard"_s);
}

TEST(SourceType, IsBuiltFromItsRawValue) {
    for (const SourceType source : allSourceTypes)
        EXPECT_EQ(sourceTypeFromRawValue(rawValue(source)), source);
}

TEST(SourceType, IsNotBuiltFromAnyOtherString) {
    for (const auto* raw : {u"Clipboard", u"CLIPBOARD", u"Obsidian", u"Apple Notes", u"applenotes",
                            u"file", u"", u" clipboard", u"clipboard "}) {
        EXPECT_EQ(sourceTypeFromRawValue(raw), std::nullopt)
            << QStringView(raw).toString().toStdString();
    }
}

TEST(SourceType, ServesAsKeyOfOrderedAndHashedContainers) {
    EXPECT_EQ(std::set<SourceType>(allSourceTypes.begin(), allSourceTypes.end()).size(), 3U);
    EXPECT_EQ(std::unordered_set<SourceType>(allSourceTypes.begin(), allSourceTypes.end()).size(),
              3U);
    EXPECT_EQ(QSet<SourceType>(allSourceTypes.begin(), allSourceTypes.end()).size(), 3);
}

} // namespace
} // namespace tessaline

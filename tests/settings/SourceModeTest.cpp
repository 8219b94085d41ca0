#include "settings/SourceMode.h"

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(SourceMode, ListsAllCasesInDeclarationOrder) {
    EXPECT_THAT(allSourceModes, testing::ElementsAre(SourceMode::file, SourceMode::clipboard));
}

TEST(SourceMode, HasRawValues) {
    EXPECT_EQ(rawValue(SourceMode::file), u"file"_s);
    EXPECT_EQ(rawValue(SourceMode::clipboard), u"clipboard"_s);
}

TEST(SourceMode, IsBuiltFromItsRawValueOnly) {
    EXPECT_EQ(sourceModeFromRawValue(u"file"), SourceMode::file);
    EXPECT_EQ(sourceModeFromRawValue(u"clipboard"), SourceMode::clipboard);
    EXPECT_EQ(sourceModeFromRawValue(u"File"), std::nullopt);
    EXPECT_EQ(sourceModeFromRawValue(u"obsidian"), std::nullopt);
    EXPECT_EQ(sourceModeFromRawValue(u""), std::nullopt);
}

} // namespace
} // namespace tessaline

#include "macos/adapters/MacAdaptersFixture.h"
#include "platform/ApplicationLookup.h"
#include "platform/FileIcons.h"
#include "platform/FolderChooser.h"
#include "platform/StatusArea.h"
#include "platform/macos/MacAdapters.h"

#include <QIcon>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class MacFilesTest : public MacAdaptersTest {};

TEST_F(MacFilesTest, FindEveryPlaceOfAnApplication) {
    for (int i = 0; i < 20; ++i)
        mac.applications += u"/Applications/Copy %1.app"_s.arg(i);
    const auto lookup = makeApplicationLookup();
    EXPECT_EQ(lookup->applicationPaths(u"md.obsidian"_s), mac.applications);
    EXPECT_EQ(lookup->workspaceApplicationPath(u"md.obsidian"_s), mac.applications.first());
    EXPECT_THAT(takeCalls(),
                ElementsAre(u"applications md.obsidian"_s, u"application md.obsidian"_s));
    EXPECT_TRUE(lookup->knowsEveryApplication());
}

TEST_F(MacFilesTest, FindNoApplicationThatIsNotThere) {
    const auto lookup = makeApplicationLookup();
    EXPECT_THAT(lookup->applicationPaths(u"md.obsidian"_s), IsEmpty());
    EXPECT_EQ(lookup->workspaceApplicationPath(u"md.obsidian"_s), std::nullopt);
}

TEST_F(MacFilesTest, LetTheUserPickAFolder) {
    mac.pickedFolder = u"/Users/ann/vault"_s;
    EXPECT_EQ(makeFolderChooser()->chooseFolder(
                  {.title = u"T"_s, .message = u"M"_s, .startFolder = u"/Users/ann"_s}),
              u"/Users/ann/vault"_s);
    EXPECT_THAT(takeCalls(),
                ElementsAre(u"setTitle:T"_s, u"setMessage:M"_s, u"setCanChooseDirectories:1"_s,
                            u"setCanChooseFiles:0"_s, u"setAllowsMultipleSelection:0"_s,
                            u"setCanCreateDirectories:0"_s, u"setDirectoryURL:/Users/ann"_s));
}

TEST_F(MacFilesTest, PickNoFolderWhenTheUserDoesNot) {
    const auto chooser = makeFolderChooser();
    EXPECT_EQ(chooser->chooseFolder({}), std::nullopt) << "there is none";
    mac.pickedFolder = u"/Users/ann"_s;
    mac.panelAnswersYes = false;
    EXPECT_EQ(chooser->chooseFolder({}), std::nullopt) << "the user thought better of it";
}

TEST_F(MacFilesTest, DrawAnIconInEverySizeThatIsShown) {
    const QIcon icon = makeFileIcons()->iconForFile(u"/Applications/Obsidian.app"_s);
    EXPECT_THAT(icon.availableSizes(),
                ElementsAre(QSize(16, 16), QSize(32, 32), QSize(64, 64), QSize(128, 128)));
    // Eight bits for a part, alpha first and multiplied in, in this machine's order.
    EXPECT_THAT(takeCalls(), Contains(u"canvas 128x128 8 8194"_s));
}

TEST_F(MacFilesTest, DrawASymbolAtTwoPixelsToThePoint) {
    const QImage symbol = makeStatusArea()->symbol(u"text.viewfinder"_s, u"Tessaline"_s);
    EXPECT_EQ(symbol.size(), QSize(44, 34));
    EXPECT_EQ(symbol.devicePixelRatio(), 2);
    EXPECT_EQ(symbol.constBits()[0], 0x10) << "as it was drawn";
    EXPECT_THAT(takeCalls(), ElementsAre(u"symbol text.viewfinder, Tessaline"_s, u"picture 44x34"_s,
                                         u"canvas 44x34 8 8194"_s, u"draw 44x34"_s));
}

TEST_F(MacFilesTest, HaveNoSymbolWhereNothingCanBeDrawn) {
    mac.hasPictures = false;
    EXPECT_TRUE(makeStatusArea()->symbol(u"text.viewfinder"_s, {}).isNull());
}

} // namespace
} // namespace tessaline

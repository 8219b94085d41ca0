#include "ui/onboarding/IntegrationToggleView.h"

#include "controls/IconImage.h"
#include "support/CaseName.h"
#include "support/Part.h"
#include "support/PrintQt.h"
#include "ui/controls/Switch.h"

#include <QLabel>
#include <QTest>

#include <gmock/gmock.h>

#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

struct Face {
    SourceType source;
    QString emoji;
    QString name;
};

class IntegrationFace : public testing::TestWithParam<Face> {};

TEST_P(IntegrationFace, ShowsTheSourceByEmojiAndNameWithoutAnImage) {
    IntegrationToggleView view(GetParam().source, false);
    view.setupUI(false, u"status"_s, {});
    ASSERT_TRUE(part<QLabel>(view, "iconLabel"));
    EXPECT_FALSE(part<IconImage>(view, "iconImageView"));
    EXPECT_EQ(part<QLabel>(view, "iconLabel")->text(), GetParam().emoji);
    EXPECT_EQ(part<QLabel>(view, "titleLabel")->text(), GetParam().name);
    EXPECT_EQ(part<QLabel>(view, "statusLabel")->text(), u"status"_s);
    EXPECT_EQ(part<Switch>(view, "toggleSwitch")->accessibleName(), GetParam().name);
    EXPECT_EQ(view.height(), 60);
}

INSTANTIATE_TEST_SUITE_P(Sources, IntegrationFace,
                         testing::Values(Face{SourceType::obsidian, u"📄"_s, u"Obsidian"_s},
                                         Face{SourceType::appleNotes, u"📝"_s, u"Apple Notes"_s},
                                         Face{SourceType::clipboard, u"📋"_s, u"Clipboard"_s}),
                         byMember<&Face::name>);

TEST(IntegrationToggleView, ShowsTheImageInPlaceOfTheEmoji) {
    QPixmap picture(8, 8);
    picture.fill(Qt::red);
    IntegrationToggleView view(SourceType::obsidian, false);
    view.setupUI(true, {}, QIcon(picture));
    EXPECT_FALSE(part<QLabel>(view, "iconLabel"));
    ASSERT_TRUE(part<IconImage>(view, "iconImageView"));
    EXPECT_TRUE(view.isAncestorOf(part<QLabel>(view, "titleLabel")));
    EXPECT_TRUE(view.isAncestorOf(part<QLabel>(view, "statusLabel")));
    EXPECT_EQ(part<IconImage>(view, "iconImageView")->size(), QSize(24, 24));
    // Filled to the edges although the picture is smaller.
    const QImage drawn = part<IconImage>(view, "iconImageView")->grab().toImage();
    EXPECT_EQ(drawn.pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(drawn.pixelColor(22, 22), QColor(Qt::red));
}

TEST(IntegrationToggleView, TellsTheNewStateToWhoeverAskedForIt) {
    IntegrationToggleView view(SourceType::obsidian, false);
    view.setupUI(false, {}, {});
    QTest::mouseClick(part<Switch>(view, "toggleSwitch"), Qt::LeftButton); // nobody asked
    std::vector<bool> states;
    view.onToggleChanged = [&states](bool on) { states.push_back(on); };
    QTest::mouseClick(part<Switch>(view, "toggleSwitch"), Qt::LeftButton);
    QTest::mouseClick(part<Switch>(view, "toggleSwitch"), Qt::LeftButton);
    EXPECT_THAT(states, ElementsAre(false, true));
}

TEST(IntegrationToggleView, ALockedRowCannotBeSwitched) {
    IntegrationToggleView view(SourceType::clipboard, true);
    view.setupUI(true, {}, {});
    std::vector<bool> states;
    view.onToggleChanged = [&states](bool on) { states.push_back(on); };
    QTest::mouseClick(part<Switch>(view, "toggleSwitch"), Qt::LeftButton);
    EXPECT_FALSE(part<Switch>(view, "toggleSwitch")->isEnabled());
    EXPECT_TRUE(part<Switch>(view, "toggleSwitch")->isChecked());
    EXPECT_THAT(states, IsEmpty());
}

} // namespace
} // namespace tessaline

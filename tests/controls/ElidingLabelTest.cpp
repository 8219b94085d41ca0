#include "controls/ElidingLabel.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "support/PaintCounter.h"
#include "support/PrintQt.h"
#include "support/WidgetPicture.h"

#include <QAccessible>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(ElidingLabel, KeepsTheWholeTextForScreenReadersAndTheToolTip) {
    ElidingLabel label(Qt::ElideRight);
    label.setFixedWidth(60);
    label.showWithToolTip(u"A <b>note</b> with a long name"_s);
    EXPECT_EQ(label.text(), u"A <b>note</b> with a long name"_s);
    EXPECT_EQ(label.toolTip(), u"A &lt;b&gt;note&lt;/b&gt; with a long name"_s);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&label);
    ASSERT_TRUE(spoken);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"A <b>note</b> with a long name"_s);
}

TEST(ElidingLabel, NeedsNoToolTipForATextThatFits) {
    ElidingLabel label(Qt::ElideRight);
    label.setFixedWidth(300);
    label.showWithToolTip(u"Short"_s);
    EXPECT_EQ(label.toolTip(), QString());
}

TEST(ElidingLabel, LosesWhatDoesNotFit) {
    ElidingLabel label(Qt::ElideRight);
    label.setText(u"Beginning"_s + QString(40, u'w'));
    label.resize(60, label.sizeHint().height());
    const QImage tail = pictureOf(label);
    EXPECT_LE(inkOf(tail).right(), 60);
    label.setText(u"Beginning"_s + QString(80, u'w'));
    EXPECT_EQ(pictureOf(label), tail); // the rest is not seen
    ElidingLabel middle(Qt::ElideMiddle);
    middle.setText(label.text());
    middle.resize(label.size());
    EXPECT_NE(pictureOf(middle), tail);
}

TEST(ElidingLabel, PaintsItselfAgainOnlyInAnotherColour) {
    ElidingLabel label(Qt::ElideLeft);
    setTextColor(label, SystemPalette::red);
    label.show();
    PaintCounter paints(label);
    paints.take();
    setTextColor(label, SystemPalette::red);
    EXPECT_EQ(paints.take(), 0);
    setTextColor(label, SystemPalette::green);
    EXPECT_EQ(paints.take(), 1);
}

TEST(ElidingLabel, CutsATextThatDoesNotFitAtItsBeginning) {
    ElidingLabel label(Qt::ElideLeft);
    label.setFont(systemFont(11));
    label.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label.resize(60, 16);
    const auto pictureWith = [&](const QString& text) {
        label.setText(text);
        return pictureOf(label, 4);
    };
    const QImage picture = pictureWith(u"123456 words • ~2m30s"_s);
    EXPECT_GT(inkOf(picture).left(), 0);
    EXPECT_NEAR(inkOf(picture).right(), 60, 2);
    EXPECT_EQ(pictureWith(u"987 words • ~2m30s"_s), picture);
    EXPECT_NE(pictureWith(u"123456 words • ~2m35s"_s), picture);
    EXPECT_EQ(label.text(), u"123456 words • ~2m35s"_s);
}

} // namespace
} // namespace tessaline

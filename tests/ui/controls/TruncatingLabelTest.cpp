#include "ui/controls/TruncatingLabel.h"

#include "support/PrintQt.h"
#include "support/WidgetPicture.h"

#include <QAccessible>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(TruncatingLabel, KeepsTheWholeTextForScreenReadersAndTheToolTip) {
    TruncatingLabel label(Qt::ElideRight, 60);
    label.showText(u"A <b>note</b> with a long name"_s);
    EXPECT_EQ(label.text(), u"A <b>note</b> with a long name"_s);
    EXPECT_EQ(label.toolTip(), u"A &lt;b&gt;note&lt;/b&gt; with a long name"_s);
    EXPECT_EQ(label.width(), 60);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&label);
    ASSERT_TRUE(spoken);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"A <b>note</b> with a long name"_s);
}

TEST(TruncatingLabel, NeedsNoToolTipForATextThatFits) {
    TruncatingLabel label(Qt::ElideRight, 300);
    label.showText(u"Short"_s);
    EXPECT_EQ(label.toolTip(), QString());
}

TEST(TruncatingLabel, LosesWhatDoesNotFit) {
    TruncatingLabel label(Qt::ElideRight, 60);
    label.showText(u"Beginning"_s + QString(40, u'w'));
    label.resize(60, label.sizeHint().height());
    const QImage tail = pictureOf(label);
    EXPECT_LE(inkOf(tail).right(), 60);
    label.showText(u"Beginning"_s + QString(80, u'w'));
    EXPECT_EQ(pictureOf(label), tail); // the rest is not seen
    TruncatingLabel middle(Qt::ElideMiddle, 60);
    middle.showText(label.text());
    middle.resize(label.size());
    EXPECT_NE(pictureOf(middle), tail);
}

} // namespace
} // namespace tessaline

#include "controls/Labels.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "support/PrintQt.h"

#include <QFontMetrics>
#include <QLabel>

#include <gtest/gtest.h>

#include <memory>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(Labels, ShowMarkupAsText) {
    const std::unique_ptr<QLabel> label(
        makeLabel(u"a <b>note</b>"_s, systemFont(12), SystemPalette::label));
    EXPECT_EQ(label->sizeHint().width(),
              QFontMetrics(label->font()).size(0, u"a <b>note</b>"_s).width());
}

TEST(Labels, BreakTheirTextOnlyWhereTheyAreToldTo) {
    const QString text = u"a text of quite a few words"_s;
    const std::unique_ptr<QLabel> whole(makeLabel(text, systemFont(12), SystemPalette::label));
    const std::unique_ptr<QLabel> broken(
        makeWrappingLabel(text, systemFont(12), SystemPalette::label));
    EXPECT_FALSE(whole->hasHeightForWidth());
    EXPECT_GT(broken->heightForWidth(60), 2 * whole->sizeHint().height());
}

} // namespace
} // namespace tessaline

#include "export/HtmlText.h"

#include <QString>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(HtmlText, EscapesMarkup) {
    EXPECT_EQ(htmlText(u"<b> & \"x\" &amp;"), "&lt;b&gt; &amp; &quot;x&quot; &amp;amp;");
}

TEST(HtmlText, KeepsTextAndTabs) {
    EXPECT_EQ(htmlText(u"a\tb é 👋 שלום"), "a\tb é 👋 שלום");
}

TEST(HtmlText, ReplacesControlCharacters) {
    EXPECT_EQ(htmlText(QString(QChar(0)) + u"\a\x1B\x7F\u0085\u009F"_s),
              "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(HtmlText, ReplacesLoneSurrogates) {
    EXPECT_EQ(htmlText(QString(QChar(0xD83D)) + u'x'), "\uFFFDx");
    EXPECT_EQ(htmlText(QString(QChar(0xDC4B))), "\uFFFD");
    EXPECT_EQ(htmlText(u"x"_s + QString(QChar(0xD83D))), "x\uFFFD");
}

} // namespace
} // namespace tessaline

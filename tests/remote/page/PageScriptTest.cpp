#include "remote/page/PageScript.h"
#include "reading/MarkdownScript.h"
#include "reading/Script.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

std::shared_ptr<const Script> scriptOf(const QString& markdown) {
    return std::make_shared<Script>(markdownScript(markdown, 16));
}

} // namespace

TEST(PageScript, TellsWhatEachParagraphIs) {
    PageScript script;
    script.show(scriptOf(u"## Title\n- item\nsome **bold** <script>\n> said"_s));
    EXPECT_EQ(script.version(), 1);
    EXPECT_EQ(script.part("1/0")->toStdString(),
              R"([["h2","Title"],["item","• item"],)"
              R"(["text","some bold <script>"],["quote","┃ said"]])");
}

TEST(PageScript, ComesInParts) {
    PageScript script;
    script.show(scriptOf(u"line\n"_s.repeated(500)));
    ASSERT_GE(script.paragraphs(), 500u);
    EXPECT_EQ(script.part("1/0")->count("line"), 400);
    EXPECT_EQ(script.part("1/1")->count("line"), 100);
    EXPECT_FALSE(script.part("1/2"));
}

TEST(PageScript, HasNoPartOfAnotherName) {
    PageScript script;
    EXPECT_FALSE(script.part("0/0")) << "there is no script yet";
    const auto shown = scriptOf(u"one"_s);
    script.show(shown);
    script.show(shown);
    EXPECT_EQ(script.version(), 1);
    for (const char* name : {"", "1", "1/", "/", "1/-1", "1/x", "0/0", "2/0", "01/0", "1/0/",
                             "1/0/0", "1/4294967296", "1/4294967295"})
        EXPECT_FALSE(script.part(name)) << name;
    script.show(scriptOf(u"two"_s));
    EXPECT_FALSE(script.part("1/0"));
    EXPECT_TRUE(script.part("2/0"));
}

} // namespace tessaline

#include "cli/documents/ManualPage.h"

#include "cli/CommandTable.h"
#include "cli/documents/Roff.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(Roff, LeavesNothingThatMeansSomethingElse) {
    EXPECT_EQ(roffText(u"a-b \\ 'c' ~d"), u"a\\-b \\e \\(aqc\\(aq \\(tid"_s);
    EXPECT_EQ(roffText(u".SH no. request"), u"\\&.SH no. request"_s);
    EXPECT_EQ(roffBold(u"-o"), u"\\fB\\-o\\fP"_s);
}

TEST(Roff, SeparatesParagraphsAtEmptyLines) {
    EXPECT_EQ(roffParagraphs(u"a\nb\n\n.c\n"), u"a\nb\n.PP\n\\&.c\n"_s);
}

TEST(ManualPage, NamesEverythingInTheCommandTable) {
    const QString page = manualPage(u"1.2.3"_s, u"2026-01-02"_s);
    EXPECT_TRUE(page.startsWith(
        u".TH TESSALINE 1 2026-01-02 \"tessaline 1.2.3\" \"User Commands\"\n.SH NAME\n"_s));
    std::vector<const CommandSpec*> specs{&programSpec()};
    for (const CommandSpec& spec : commandSpecs()) {
        specs.push_back(&spec);
        EXPECT_TRUE(page.contains("\n.SH "_L1 + spec.name.toString().toUpper() + u'\n'));
    }
    for (const CommandSpec* spec : specs) {
        EXPECT_TRUE(page.contains(roffParagraphs(spec->description)));
        EXPECT_TRUE(page.contains(roffParagraphs(spec->notes)));
        for (const CommandOption& option : spec->options) {
            EXPECT_TRUE(page.contains(roffBold(u"--"_s + option.name.toString())));
            EXPECT_TRUE(page.contains(roffParagraphs(option.help)));
        }
        for (const ControlAction& action : spec->actions)
            EXPECT_TRUE(page.contains("\n.TP\n"_L1 + roffBold(action.name)));
        for (const HelpSection& section : spec->sections) {
            for (const HelpEntry& entry : section.entries) {
                EXPECT_TRUE(page.contains(roffBold(entry.term)));
                EXPECT_TRUE(page.contains(roffParagraphs(entry.text)));
            }
        }
    }
}

TEST(ManualPage, ShowsHowEveryCommandIsCalled) {
    const QString page = manualPage(u"1.2.3"_s, u"2026-01-02"_s);
    const QString synopsis =
        page.section(u"\n.SH SYNOPSIS\n"_s, 1).section(u"\n.SH DESCRIPTION\n"_s, 0, 0);
    EXPECT_TRUE(synopsis.contains(roffText(programSpec().usage)));
    for (const CommandSpec& spec : commandSpecs())
        EXPECT_TRUE(synopsis.contains(roffBold(spec.name) + u' ' + roffText(spec.usage)));
}

TEST(ManualPage, HasTheProgramsOptionsInASectionOfTheirOwn) {
    const QString page = manualPage(u"1.2.3"_s, u"2026-01-02"_s);
    const QString options = page.section(u"\n.SH OPTIONS\n"_s, 1).section(u"\n.SH "_s, 0, 0);
    for (const CommandOption& option : programSpec().options)
        EXPECT_TRUE(options.contains(roffBold(u"--"_s + option.name.toString())));
}

TEST(ManualPage, SetsEveryExampleInAParagraphOfItsOwn) {
    const QString page = manualPage(u"1.2.3"_s, u"2026-01-02"_s);
    const auto& sections = commandNamed(u"render")->sections;
    int following = 0;
    for (const HelpSection& section : sections) {
        for (const HelpEntry& entry : section.entries.subspan(1)) {
            if (!entry.text.isEmpty()) continue;
            ++following;
            EXPECT_TRUE(page.contains("\n.PP\n"_L1 + roffBold(entry.term) + u'\n'));
        }
    }
    EXPECT_GT(following, 0);
}

} // namespace
} // namespace tessaline

#include "cli/HelpText.h"

#include "cli/CommandTable.h"
#include "cli/ControlActions.h"
#include "cli/RenderRequest.h"
#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

std::vector<const CommandSpec*> allSpecs() {
    std::vector<const CommandSpec*> specs{&programSpec()};
    for (const CommandSpec& spec : commandSpecs())
        specs.push_back(&spec);
    return specs;
}

class HelpOfACommand : public testing::TestWithParam<const CommandSpec*> {};

TEST_P(HelpOfACommand, NamesEveryOptionWithItsExplanation) {
    const QString help = helpText(*GetParam());
    for (const CommandOption& option : GetParam()->options) {
        EXPECT_TRUE(help.contains("--"_L1 + option.name.toString())) << option.name.toUtf8().data();
        for (const QStringView line : option.help.split(u'\n'))
            EXPECT_TRUE(help.contains(line)) << line.toUtf8().data();
    }
}

TEST_P(HelpOfACommand, ExplainsTheExitStatuses) {
    const QString help = helpText(*GetParam());
    for (const auto status : {"Exit status:\n  0  "_L1, "\n  1  "_L1, "\n  2  "_L1})
        EXPECT_TRUE(help.contains(status)) << status.data();
}

TEST_P(HelpOfACommand, TellsWhatItsOptionsDoNot) {
    EXPECT_TRUE(helpText(*GetParam()).contains(GetParam()->notes));
}

TEST_P(HelpOfACommand, HasExamples) {
    EXPECT_TRUE(helpText(*GetParam()).contains("\nExamples:\n  tessaline "_L1));
}

TEST_P(HelpOfACommand, FitsATerminal) {
    const QString help = helpText(*GetParam());
    EXPECT_TRUE(help.endsWith(u'\n'));
    for (const QString& line : help.split(u'\n')) {
        EXPECT_LE(line.size(), 80) << line.toStdString();
        EXPECT_FALSE(line.endsWith(u' ')) << line.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Specs, HelpOfACommand, testing::ValuesIn(allSpecs()),
                         byMember<&CommandSpec::name>);

TEST(HelpText, OfTheProgramNamesEveryCommand) {
    const QString help = helpText(programSpec());
    for (const CommandSpec& command : commandSpecs()) {
        EXPECT_TRUE(help.contains("\n       tessaline "_L1 + command.name.toString() + u' '));
        EXPECT_TRUE(help.contains("\n  "_L1 + command.name.toString() + "  "_L1));
    }
}

TEST(HelpText, OfControlNamesEveryActionWithItsExplanation) {
    const QString help = helpText(*commandNamed(u"ctl"));
    for (const ControlAction& action : controlActions()) {
        EXPECT_TRUE(help.contains("\n  "_L1 + action.name.toString() + u' '));
        EXPECT_TRUE(help.contains("  "_L1 + action.help.toString() + u'\n'));
    }
}

TEST(HelpText, IndentsOptionsWithoutALetterLikeThoseWithOne) {
    const QString help = helpText(*commandNamed(u"render"));
    for (const CommandOption& option : commandNamed(u"render")->options) {
        const QString letter = option.letter ? u"-%1, "_s.arg(QChar(option.letter)) : u"    "_s;
        EXPECT_TRUE(help.contains("\n  "_L1 + letter + "--"_L1 + option.name.toString()));
    }
}

TEST(HelpText, PutsAnExplanationBelowATermThatIsTooWide) {
    EXPECT_TRUE(
        helpText(programSpec())
            .contains(u"\n  pandoc talk.odt -t markdown | tessaline -\n"
                      u"                              Show what another program writes.\n"_s));
}

TEST(HelpText, OfRenderTellsTheDefaultsAndLimitsThatHold) {
    const QString help = helpText(*commandNamed(u"render")).simplified();
    const RenderRequest defaults;
    EXPECT_TRUE(help.contains(
        u"up to %1. Default: %2."_s.arg(RenderRequest::largestFontSize).arg(defaults.fontSize)));
    EXPECT_TRUE(help.contains(
        u"from %1 to %2, margins included. Default: %3."_s.arg(RenderRequest::leastWidth)
            .arg(RenderRequest::mostWidth)
            .arg(defaults.width)));
    EXPECT_EQ(defaults.format, RenderFormat::json);
    EXPECT_TRUE(help.contains(u"json, html or png. Default: json."_s));
}

TEST(HelpText, BeginsWithTheUsage) {
    EXPECT_TRUE(helpText(*commandNamed(u"render"))
                    .startsWith(u"Usage: tessaline render FILE|- [OPTION]...\n\n"_s));
    EXPECT_TRUE(helpText(programSpec()).startsWith(u"Usage: tessaline [--follow] [FILE|-]\n"_s));
}

} // namespace
} // namespace tessaline

#include "cli/CommandLine.h"

#include "cli/CommandTable.h"
#include "cli/HelpText.h"
#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// The mistake that these arguments are answered with; fails the test when they are accepted.
QString mistakeIn(const QStringList& arguments) {
    const auto request = CommandLine::parse(arguments);
    const auto* mistake = std::get_if<CommandLine::Mistake>(&request);
    EXPECT_NE(mistake, nullptr);
    return mistake ? mistake->message : QString();
}

/// The rendering that these arguments, behind "render", ask for; fails the test when they do not.
RenderRequest renderRequest(const QStringList& arguments) {
    const auto request = CommandLine::parse(QStringList{u"render"_s} + arguments);
    const auto* render = std::get_if<RenderRequest>(&request);
    EXPECT_NE(render, nullptr);
    return render ? *render : RenderRequest{};
}

struct Shown {
    QStringList arguments;
    std::optional<QString> input;
};

class CommandLineShow : public testing::TestWithParam<Shown> {};

TEST_P(CommandLineShow, ShowsTheFileIfThereIsOne) {
    EXPECT_EQ(CommandLine::parse(GetParam().arguments),
              CommandLine::Request(CommandLine::Show{GetParam().input}));
}

INSTANTIATE_TEST_SUITE_P(Arguments, CommandLineShow,
                         testing::Values(Shown{{}, std::nullopt}, Shown{{u"--"_s}, std::nullopt},
                                         Shown{{u"talk.md"_s}, u"talk.md"_s},
                                         Shown{{u"-"_s}, u"-"_s},
                                         Shown{{u"--"_s, u"--help"_s}, u"--help"_s},
                                         Shown{{u"--"_s, u"-"_s}, u"-"_s},
                                         Shown{{u"--"_s, u"render"_s}, u"render"_s},
                                         Shown{{u"./render"_s}, u"./render"_s},
                                         Shown{{u"Render"_s}, u"Render"_s}, Shown{{u""_s}, u""_s}),
                         byMember<&Shown::arguments>);

class CommandLineFollow : public testing::TestWithParam<QStringList> {};

TEST_P(CommandLineFollow, ShowsTheFileAndItsChanges) {
    EXPECT_EQ(CommandLine::parse(GetParam()),
              CommandLine::Request(CommandLine::Show{.input = u"talk.md"_s, .follow = true}));
}

INSTANTIATE_TEST_SUITE_P(Arguments, CommandLineFollow,
                         testing::Values(QStringList{u"--follow"_s, u"talk.md"_s},
                                         QStringList{u"talk.md"_s, u"--follow"_s},
                                         QStringList{u"--follow"_s, u"--"_s, u"talk.md"_s}),
                         byValue);

TEST(CommandLine, TellsTheRunningPrompterWhatToDo) {
    EXPECT_EQ(CommandLine::parse({u"ctl"_s, u"next-heading"_s}),
              CommandLine::Request(ControlRequest{ControlCommand::nextHeading, {}}));
    EXPECT_EQ(CommandLine::parse({u"ctl"_s, u"speed"_s, u"2.50"_s}),
              CommandLine::Request(ControlRequest{ControlCommand::speed, u"2.5"_s}));
    EXPECT_EQ(CommandLine::parse({u"ctl"_s, u"--"_s, u"rate"_s, u"fast"_s}),
              CommandLine::Request(ControlRequest{ControlCommand::rate, u"fast"_s}));
}

TEST(CommandLine, PrintsTheHelpOfTheProgram) {
    const CommandLine::Request help = CommandLine::Print{helpText(programSpec())};
    EXPECT_EQ(CommandLine::parse({u"--help"_s}), help);
    EXPECT_EQ(CommandLine::parse({u"-h"_s}), help);
    EXPECT_EQ(CommandLine::parse({u"talk.md"_s, u"--help"_s}), help);
}

TEST(CommandLine, PrintsTheHelpOfACommandWhateverElseIsMissing) {
    const CommandLine::Request help = CommandLine::Print{helpText(*commandNamed(u"render"))};
    EXPECT_EQ(CommandLine::parse({u"render"_s, u"--help"_s}), help);
    EXPECT_EQ(CommandLine::parse({u"render"_s, u"a.md"_s, u"--width"_s, u"1"_s, u"-h"_s}), help);
}

TEST(CommandLine, PrintsTheHelpOfControlWhateverElseIsWrong) {
    const CommandLine::Request help = CommandLine::Print{helpText(*commandNamed(u"ctl"))};
    EXPECT_EQ(CommandLine::parse({u"ctl"_s, u"--help"_s}), help);
    EXPECT_EQ(CommandLine::parse({u"ctl"_s, u"speed"_s, u"-h"_s}), help);
}

TEST(CommandLine, PrintsTheVersion) {
    EXPECT_EQ(CommandLine::parse({u"--version"_s}),
              CommandLine::Request(CommandLine::Print{u"tessaline " TESSALINE_VERSION "\n"_s}));
}

struct Rendered {
    QStringList arguments;
    RenderRequest request;
};

class CommandLineRender : public testing::TestWithParam<Rendered> {};

TEST_P(CommandLineRender, AsksForARendering) {
    EXPECT_EQ(renderRequest(GetParam().arguments), GetParam().request);
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, CommandLineRender,
    testing::Values(
        Rendered{{u"a.md"_s}, {.input = u"a.md"_s}}, Rendered{{u"-"_s}, {.input = u"-"_s}},
        Rendered{{u"a.md"_s, u"--format"_s, u"html"_s},
                 {.input = u"a.md"_s, .format = RenderFormat::html}},
        Rendered{{u"--format=png"_s, u"a.md"_s}, {.input = u"a.md"_s, .format = RenderFormat::png}},
        Rendered{{u"--format"_s, u"png"_s, u"a.md"_s, u"--format=json"_s}, {.input = u"a.md"_s}},
        Rendered{{u"a.md"_s, u"-o"_s, u"x=y.json"_s},
                 {.input = u"a.md"_s, .output = u"x=y.json"_s}},
        Rendered{{u"a.md"_s, u"-ox"_s}, {.input = u"a.md"_s, .output = u"x"_s}},
        Rendered{{u"a.md"_s, u"--output=x=y"_s}, {.input = u"a.md"_s, .output = u"x=y"_s}},
        Rendered{{u"a.md"_s, u"-o"_s, u"-x"_s}, {.input = u"a.md"_s, .output = u"-x"_s}},
        Rendered{{u"a.md"_s, u"-o"_s, u"-"_s}, {.input = u"a.md"_s}},
        Rendered{{u"--"_s, u"--format"_s}, {.input = u"--format"_s}},
        Rendered{{u"a.md"_s, u"--font-size"_s, u"1000"_s}, {.input = u"a.md"_s, .fontSize = 1000}},
        Rendered{{u"a.md"_s, u"--font-size=0.5"_s}, {.input = u"a.md"_s, .fontSize = 0.5}},
        Rendered{{u"a.md"_s, u"--width"_s, u"50"_s}, {.input = u"a.md"_s, .width = 50}},
        Rendered{{u"a.md"_s, u"--width=10000"_s}, {.input = u"a.md"_s, .width = 10000}}),
    byMember<&Rendered::arguments>);

struct Mistaken {
    QStringList arguments;
    QString message;
};

class CommandLineMistake : public testing::TestWithParam<Mistaken> {};

TEST_P(CommandLineMistake, IsNamedWithAHint) {
    const auto& [arguments, message] = GetParam();
    const QString command = commandNamed(arguments.first()) ? u' ' + arguments.first() : QString();
    EXPECT_EQ(mistakeIn(arguments), message + u". Try 'tessaline%1 --help'."_s.arg(command));
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, CommandLineMistake,
    testing::Values(
        Mistaken{{u"--bogus"_s}, u"unknown option '--bogus'"_s},
        Mistaken{{u"--bogus=3"_s}, u"unknown option '--bogus'"_s},
        Mistaken{{u"-x"_s}, u"unknown option '-x'"_s},
        Mistaken{{u"-hx"_s}, u"unknown option '-hx'"_s},
        Mistaken{{u"-format"_s}, u"unknown option '-format'"_s},
        Mistaken{{u"--hel"_s}, u"unknown option '--hel'"_s},
        Mistaken{{u"--=x"_s}, u"unknown option '--'"_s},
        Mistaken{{u"--help=x"_s}, u"option '--help' takes no value"_s},
        Mistaken{{u"--version="_s}, u"option '--version' takes no value"_s},
        Mistaken{{u"--format"_s, u"json"_s}, u"unknown option '--format'"_s},
        Mistaken{{u"a.md"_s, u"b.md"_s}, u"unexpected argument 'b.md'"_s},
        Mistaken{{u"--"_s, u"a.md"_s, u"--"_s}, u"unexpected argument '--'"_s},
        Mistaken{{u"--follow"_s}, u"option '--follow' needs a FILE"_s},
        Mistaken{{u"--follow"_s, u"-"_s}, u"standard input cannot be followed"_s},
        Mistaken{{u"--follow=talk.md"_s}, u"option '--follow' takes no value"_s},
        Mistaken{{u"-5"_s}, u"unknown option '-5'"_s},
        Mistaken{{u"ctl"_s}, u"ctl needs a COMMAND"_s},
        Mistaken{{u"ctl"_s, u"jump"_s}, u"unknown command 'jump'"_s},
        Mistaken{{u"ctl"_s, u"Play"_s}, u"unknown command 'Play'"_s},
        Mistaken{{u"ctl"_s, u""_s}, u"unknown command ''"_s},
        Mistaken{{u"ctl"_s, u"play"_s, u"now"_s}, u"unexpected argument 'now'"_s},
        Mistaken{{u"ctl"_s, u"speed"_s, u"1"_s, u"2"_s}, u"unexpected argument '2'"_s},
        Mistaken{{u"ctl"_s, u"speed"_s}, u"speed needs a number from 0 to 5"_s},
        Mistaken{{u"ctl"_s, u"speed"_s, u"-1"_s}, u"speed '-1' is not a number from 0 to 5"_s},
        Mistaken{{u"ctl"_s, u"rate"_s}, u"rate needs slow, medium or fast"_s},
        Mistaken{{u"ctl"_s, u"source"_s}, u"source needs obsidian or clipboard"_s},
        Mistaken{{u"ctl"_s, u"play"_s, u"--version"_s}, u"unknown option '--version'"_s},
        Mistaken{{u"ctl"_s, u"speed"_s, u"-x"_s}, u"unknown option '-x'"_s},
        Mistaken{{u"render"_s}, u"render needs a FILE, or '-' for standard input"_s},
        Mistaken{{u"render"_s, u"--"_s}, u"render needs a FILE, or '-' for standard input"_s},
        Mistaken{{u"render"_s, u"a.md"_s, u"b.md"_s}, u"unexpected argument 'b.md'"_s},
        Mistaken{{u"render"_s, u"a.md"_s, u"--version"_s}, u"unknown option '--version'"_s},
        Mistaken{{u"render"_s, u"a.md"_s, u"--format"_s}, u"option '--format' needs a value"_s},
        Mistaken{{u"render"_s, u"a.md"_s, u"-o"_s}, u"option '-o' needs a value"_s},
        Mistaken{{u"render"_s, u"a.md"_s, u"-o"_s, u""_s},
                 u"option '--output' needs the name of a file"_s},
        Mistaken{{u"render"_s, u"a.md"_s, u"--format=pdf"_s},
                 u"unknown format 'pdf'; there are json, html and png"_s},
        Mistaken{{u"render"_s, u"a.md"_s, u"--format=JSON"_s},
                 u"unknown format 'JSON'; there are json, html and png"_s},
        Mistaken{{u"render"_s, u"a.md"_s, u"--format="_s},
                 u"unknown format ''; there are json, html and png"_s}),
    byMember<&Mistaken::message>);

class CommandLineFontSize : public testing::TestWithParam<const char*> {};

TEST_P(CommandLineFontSize, IsRefused) {
    const QString size = QString::fromUtf8(GetParam());
    EXPECT_EQ(mistakeIn({u"render"_s, u"a.md"_s, u"--font-size"_s, size}),
              u"font size '"_s + size +
                  u"' is not a number above 0 and up to 1000. Try 'tessaline render --help'."_s);
}

INSTANTIATE_TEST_SUITE_P(Values, CommandLineFontSize,
                         testing::Values("nan", "NaN", "inf", "-inf", "0", "-0", "-5", "1000.001",
                                         "1e999", "", "abc", "16pt", "0x10", "16,5", "%1", "%2"),
                         byValue);

class CommandLineWidth : public testing::TestWithParam<const char*> {};

TEST_P(CommandLineWidth, IsRefused) {
    const QString width = QString::fromUtf8(GetParam());
    EXPECT_EQ(mistakeIn({u"render"_s, u"a.md"_s, u"--width"_s, width}),
              u"width '"_s + width +
                  u"' is not a whole number from 50 to 10000. Try 'tessaline render --help'."_s);
}

INSTANTIATE_TEST_SUITE_P(Values, CommandLineWidth,
                         testing::Values("49", "10001", "0", "-450", "nan", "450.5", "1e3", "",
                                         "99999999999", "%2%3"),
                         byValue);

} // namespace
} // namespace tessaline

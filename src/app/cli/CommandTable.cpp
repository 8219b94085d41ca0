#include "app/cli/CommandTable.h"

#include <algorithm>

namespace tessaline {

namespace {

constexpr CommandOption helpOption{.name = u"help", .help = u"Print this help.", .letter = u'h'};

constexpr CommandOption programOptions[] = {
    helpOption,
    {.name = u"version", .help = u"Print the program's name and version."},
};

constexpr CommandOption renderOptions[] = {
    {.name = u"format",
     .valueName = u"FORMAT",
     .help = u"What to render to: json, html or png. Default: json."},
    {.name = u"font-size",
     .valueName = u"N",
     .help = u"Size of body text in points, above 0 and up to 1000.\nDefault: 16."},
    {.name = u"width",
     .valueName = u"N",
     .help = u"Width of the column in points, a whole number from 50 to\n"
             u"10000, margins included. Default: 450. JSON ignores it."},
    {.name = u"output",
     .valueName = u"OUT",
     .help = u"Write to the file OUT, whole or not at all. Default: -,\n"
             u"which is standard output.",
     .letter = u'o'},
    helpOption,
};

constexpr CommandSpec program{
    .usage = u"[FILE|-]",
    .description =
        u"Shows a Markdown script in the prompter, a small window under the top edge of\n"
        u"the screen. FILE is shown as if its text had been pasted; '-' reads standard\n"
        u"input. Without FILE the prompter shows what it showed last.\n",
    .details = u"'--' ends the options: what follows is FILE, whatever it begins with. A FILE\n"
               u"that has the name of a command is given as ./FILE.\n"
               u"\n"
               u"Exit status:\n"
               u"  0  Success.\n"
               u"  1  The program could not start, or its output could not be written.\n"
               u"  2  A wrong argument, or a FILE that cannot be read as UTF-8 text. Nothing has\n"
               u"     changed then.\n"
               u"\n"
               u"Examples:\n"
               u"  tessaline talk.md             Show talk.md.\n"
               u"  pandoc talk.odt -t markdown | tessaline -\n"
               u"                                Show what another program writes.\n"
               u"  tessaline                     Show what was there last.\n"
               u"  tessaline -- -draft-.md       Show a file whose name begins with a dash.\n",
    .options = programOptions,
    .mostOperands = 1,
};

constexpr CommandSpec commands[] = {
    {
        .name = u"render",
        .usage = u"FILE|- [OPTION]...",
        .summary = u"Render a script to JSON, HTML or an image without starting\n"
                   u"the program. See 'tessaline render --help'.",
        .description =
            u"Renders a Markdown script as the prompter shows it, without starting the program\n"
            u"and without a display. FILE is UTF-8 text; '-' reads standard input.\n",
        .details =
            u"A value follows its option as the next argument, or after '=' as in --width=600.\n"
            u"Of an option given twice, the last one counts. '--' ends the options.\n"
            u"\n"
            u"Formats:\n"
            u"  json  The rendered text, its word count and its runs of equal attributes, with\n"
            u"        offsets in UTF-16 units. An attribute that a run does not have is left\n"
            u"        out.\n"
            u"  html  One self-contained page: the script in a column on black.\n"
            u"  png   A picture of the whole script, on black, N pixels wide and as tall as\n"
            u"        the script, at most 32767 pixels.\n"
            u"\n"
            u"Exit status:\n"
            u"  0  Success.\n"
            u"  1  The output could not be written, or the picture would be too tall.\n"
            u"  2  A wrong argument, or a FILE that cannot be read as UTF-8 text.\n"
            u"\n"
            u"Examples:\n"
            u"  tessaline render talk.md\n"
            u"  tessaline render talk.md --format html -o talk.html\n"
            u"  tessaline render talk.md --format=png --font-size=24 --width=600 -o talk.png\n"
            u"  tessaline render - < talk.md | jq .wordCount\n",
        .options = renderOptions,
        .leastOperands = 1,
        .mostOperands = 1,
    },
};

} // namespace

const CommandSpec& programSpec() {
    return program;
}

std::span<const CommandSpec> commandSpecs() {
    return commands;
}

const CommandSpec* commandNamed(QStringView name) {
    const auto found = std::find_if(std::begin(commands), std::end(commands),
                                    [&](const CommandSpec& spec) { return spec.name == name; });
    return found == std::end(commands) ? nullptr : found;
}

} // namespace tessaline

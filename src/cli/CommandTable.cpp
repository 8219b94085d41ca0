#include "cli/CommandTable.h"

#include "cli/ControlActions.h"
#include "reading/ReaderKeys.h"

#include <array>

namespace tessaline {

namespace {

using Kind = CommandValue::Kind;

constexpr CommandOption helpOption{.name = u"help", .help = u"Print this help.", .letter = u'h'};

constexpr HelpEntry wrongUse{u"2",
                             u"A wrong argument, or a FILE that cannot be read as UTF-8 text.\n"
                             u"Nothing has changed then."};

constexpr CommandOption programOptions[] = {
    {.name = u"follow",
     .help = u"Show FILE, a regular file, again whenever it changes on disk,\n"
             u"and keep the reader's place."},
    helpOption,
    {.name = u"version", .help = u"Print the program's name and version."},
};

constexpr HelpEntry programStatuses[] = {
    {u"0", u"Success."},
    {u"1", u"The program could not start, or pandoc could not read FILE."},
    {u"2", u"A wrong argument, or a FILE that cannot be read as text.\nNothing has changed then."},
};

constexpr HelpEntry programEnvironment[] = {
    {u"DO_NOT_TRACK", u"1 keeps usage signals from being collected\nand sent."},
    {u"TESSALINE_TELEMETRY_URL", u"Where usage signals go instead of to the\nusual address."},
};

constexpr HelpEntry programFiles[] = {
    {u"~/Library/Application Support/Tessaline/config.json", u"The settings."},
    {u"~/Library/Application Support/Tessaline/reading.json",
     u"The reading options, once one of them was chosen."},
    {u"~/Library/Application Support/Tessaline/clipboard-content.md",
     u"The script that was pasted or opened last."},
    {u"~/Library/Application Support/Tessaline/latest.json",
     u"Which files were opened last, and where they were left."},
    {u"~/Library/Application Support/Tessaline/analytics.json", u"The history of use."},
};

constexpr HelpEntry programExamples[] = {
    {u"tessaline talk.md", u"Show talk.md."},
    {u"tessaline --follow talk.md", u"Show it, and every change to it."},
    {u"pandoc talk.odt -t markdown | tessaline -", u"Show what another program writes."},
    {u"tessaline", u"Show what was there last."},
    {u"tessaline -- -draft-.md", u"Show a file whose name begins with a dash."},
};

constexpr auto programKeys = [] {
    std::array<HelpEntry, readerKeys.size()> entries{};
    std::ranges::transform(readerKeys, entries.begin(), [](const ReaderKeys& each) {
        return HelpEntry{each.keys, each.deed};
    });
    return entries;
}();

constexpr HelpSection programSections[] = {
    {u"Keys in the prompter", programKeys}, {u"Exit status", programStatuses},
    {u"Environment", programEnvironment},   {u"Files", programFiles},
    {u"Examples", programExamples},
};

constexpr CommandSpec program{
    .usage = u"[--follow] [FILE|-]",
    .description =
        u"Shows a Markdown script in the prompter, a small window under the top edge of\n"
        u"the screen. FILE is shown as if its text had been pasted; '-' reads standard\n"
        u"input. Without FILE the prompter shows what it showed last. If it runs already,\n"
        u"that one comes to the front and shows FILE. A .docx or .odt is read by pandoc.\n",
    .notes = u"'--' ends the options: what follows is FILE, whatever it begins with. A FILE\n"
             u"that has the name of a command is given as ./FILE.\n",
    .options = programOptions,
    .sections = programSections,
    .mostOperands = 1,
};

constexpr QStringView formats[] = {u"json", u"html", u"png"};

constexpr CommandOption renderOptions[] = {
    {.name = u"format",
     .value = {.name = u"FORMAT", .choices = formats},
     .help = u"What to render to: json, html or png. Default: json."},
    {.name = u"font-size",
     .value = {.name = u"N"},
     .help = u"Size of body text in points, above 0 and up to 1000.\nDefault: 16."},
    {.name = u"width",
     .value = {.name = u"N"},
     .help = u"Width of the column in points, a whole number from 50 to\n"
             u"10000, margins included. Default: 450. JSON ignores it."},
    {.name = u"output",
     .value = {.name = u"OUT", .kind = Kind::file},
     .help = u"Write to the file OUT, whole or not at all. Default: -,\n"
             u"which is standard output.",
     .letter = u'o'},
    helpOption,
};

constexpr HelpEntry renderFormats[] = {
    {u"json", u"The rendered text, its word count and its runs of equal attributes, with\n"
              u"offsets in UTF-16 units. An attribute that a run does not have is left\n"
              u"out."},
    {u"html", u"One self-contained page: the script in a column on black."},
    {u"png", u"A picture of the whole script, on black, N pixels wide and as tall as\n"
             u"the script, at most 32767 pixels."},
};

constexpr HelpEntry renderStatuses[] = {
    {u"0", u"Success."},
    {u"1", u"The output could not be written, or the picture would be too tall."},
    wrongUse,
};

constexpr HelpEntry renderExamples[] = {
    {u"tessaline render talk.md", u""},
    {u"tessaline render talk.md --format html -o talk.html", u""},
    {u"tessaline render talk.md --format=png --font-size=24 --width=600 -o talk.png", u""},
    {u"tessaline render - < talk.md | jq .wordCount", u""},
};

constexpr HelpSection renderSections[] = {
    {u"Formats", renderFormats},
    {u"Exit status", renderStatuses},
    {u"Examples", renderExamples},
};

constexpr CommandOption controlOptions[] = {helpOption};

constexpr HelpEntry controlStatuses[] = {
    {u"0", u"The prompter did it."},
    {u"1", u"No prompter is running, or it could not do it."},
    {u"2", u"A wrong argument. Nothing has changed then."},
};

/// Of a command to the prompter: the names of fonts have several.
constexpr qsizetype mostWords = 20;

constexpr HelpEntry controlExamples[] = {
    {u"tessaline ctl toggle", u"For a key or a foot pedal: start and stop."},
    {u"tessaline ctl speed 2.5", u"Move at speed 2.5."},
    {u"tessaline ctl pace words 150", u"Move at 150 words a minute."},
    {u"tessaline ctl pace finish 12m", u"Be at the end after twelve minutes."},
    {u"tessaline ctl status | jq .words", u"Print how many words the script has."},
};

constexpr HelpSection controlSections[] = {
    {u"Exit status", controlStatuses},
    {u"Examples", controlExamples},
};

const CommandSpec commands[] = {
    {
        .name = u"ctl",
        .usage = u"COMMAND [ARGUMENT]...",
        .summary = u"Tell the running prompter to play, pause, scroll, show and more.\n"
                   u"See 'tessaline ctl --help'.",
        .description =
            u"Tells the running prompter to do something, as its buttons and shortcuts do, and\n"
            u"prints its answer on one line. Meant for keys of the desktop, stream decks and\n"
            u"foot pedals.\n",
        .notes =
            u"The pace is the speed; or N words a minute, from 60 to 300; or such that the\n"
            u"end comes after WHEN minutes, such as 12m, or at the time WHEN, such as 15:30.\n"
            u"A time that has passed today means tomorrow. Without N or WHEN the last ones\n"
            u"count.\n"
            u"'faster' and 'slower' step what the pace is: the speed by 0.25, the words by 5,\n"
            u"the minutes by 0.5, the time by one minute.\n"
            u"\n"
            u"N of 'scroll' is from -10000 to 10000, negative towards the start. Blank lines\n"
            u"count as paragraphs.\n"
            u"N of 'eyeline' is from 25 to 50, of 'countdown' from 0 to 10, LINES is 1 or 2.\n"
            u"N of 'opacity' is from 30 to 100 percent, of 'latest' from 1, the very last\n"
            u"one, to 10, CM is from 40 to 200.\n"
            u"\n"
            u"DEED of 'remote' is 'on' or 'off'; 'status'; 'code', which prints the address\n"
            u"with the secret that lets a phone in; 'renew', which disconnects all and makes\n"
            u"another secret; 'local', for browsers of this computer only, or 'devices\n"
            u"[ADDRESS]', for all that reach its address ADDRESS; 'port N', from 1024.\n",
        .options = controlOptions,
        .actions = controlActions(),
        .sections = controlSections,
        .leastOperands = 1,
        .mostOperands = mostWords,
    },
    {
        .name = u"render",
        .usage = u"FILE|- [OPTION]...",
        .summary = u"Render a script to JSON, HTML or an image without starting\n"
                   u"the program. See 'tessaline render --help'.",
        .description =
            u"Renders a Markdown script as the prompter shows it, without starting the program\n"
            u"and without a display. FILE is UTF-8 text; '-' reads standard input.\n",
        .notes = u"A value follows its option as the next argument, or after '=' as in\n"
                 u"--width=600. Of an option given twice, the last one counts. '--' ends the\n"
                 u"options.\n",
        .options = renderOptions,
        .sections = renderSections,
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
    return entryNamed(commandSpecs(), name);
}

} // namespace tessaline

#include "cli/CommandTable.h"

#include "cli/ControlRequest.h"
#include "reading/ReaderKeys.h"
#include "settings/ReadingOptions.h"

#include <algorithm>
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

constexpr QStringView rates[] = {u"slow", u"medium", u"fast"};
constexpr QStringView sources[] = {u"obsidian", u"clipboard"};
constexpr QStringView paces[] = {u"speed", u"words", u"finish"};
constexpr QStringView guides[] = {u"none", u"marker", u"band"};
constexpr QStringView bandLines[] = {u"1", u"2"};
constexpr QStringView eyeLines[] = {u"second"};
constexpr QStringView ends[] = {u"stand", u"stop", u"round"};
constexpr QStringView mirrorWays[] = {u"none", u"horizontal", u"vertical", u"both"};
constexpr QStringView fonts[] = {u"default"};
constexpr QStringView switchStates[] = {u"on", u"off"};
constexpr QStringView switchings[] = {u"on", u"off", u"toggle"};
constexpr QStringView listDeeds[] = {u"clear"};
constexpr QStringView remoteDeeds[] = {u"on",    u"off",     u"status", u"code",
                                       u"local", u"devices", u"port",   u"renew"};
constexpr CommandValue nothing{};

constexpr ChoiceTail paceTails[] = {
    {u"words",
     {.name = u"N",
      .kind = Kind::number,
      .least = ReadingOptions::leastWordsPerMinute,
      .most = ReadingOptions::mostWordsPerMinute}},
    {u"finish",
     {.name = u"WHEN",
      .kind = Kind::finish,
      .least = ReadingOptions::leastFinishMinutes,
      .most = ReadingOptions::mostFinishMinutes}},
};

constexpr ChoiceTail remoteTails[] = {
    {u"devices", {.name = u"ADDRESS", .kind = Kind::phrase}},
    {u"port",
     {.name = u"N",
      .kind = Kind::number,
      .least = ReadingOptions::leastPort,
      .most = ReadingOptions::mostPort,
      .isWhole = true}},
};

constexpr ChoiceTail guideTails[] = {{u"band", {.name = u"LINES", .choices = bandLines}}};

using C = ControlCommand;

constexpr ControlAction actions[] = {
    {C::toggle, u"toggle", nothing, u"Start or stop moving by itself."},
    {C::play, u"play", nothing, u"Start moving by itself."},
    {C::pause, u"pause", nothing, u"Stop moving by itself."},
    {C::faster, u"faster", nothing, u"Move faster by 0.25, up to 5, or as below."},
    {C::slower, u"slower", nothing, u"Move slower by 0.25, down to 0, or as below."},
    {C::speed,
     u"speed",
     {.name = u"N",
      .kind = Kind::number,
      .least = ControlRequest::leastSpeed,
      .most = ControlRequest::mostSpeed},
     u"Move at speed N, from 0 to 5."},
    {C::rate, u"rate", {.name = u"slow|medium|fast", .choices = rates}, u"Set the speed's scale."},
    {C::pace,
     u"pace",
     {.name = u"speed|words [N]|finish [WHEN]", .choices = paces},
     u"Set what decides how fast it moves; see below.",
     paceTails},
    {C::up, u"up", nothing, u"Scroll towards the start by one step."},
    {C::down, u"down", nothing, u"Scroll towards the end by one step."},
    {C::scroll,
     u"scroll",
     {.name = u"N",
      .kind = Kind::number,
      .least = -ControlRequest::mostPoints,
      .most = ControlRequest::mostPoints},
     u"Scroll towards the end by N points."},
    {C::top, u"top", nothing, u"Go to the start of the script."},
    {C::nextHeading, u"next-heading", nothing, u"Go to the next heading."},
    {C::previousHeading, u"previous-heading", nothing, u"Go to the heading before."},
    {C::heading,
     u"heading",
     {.name = u"N", .kind = Kind::number, .least = 1.0, .most = 9999.0, .isWhole = true},
     u"Go to the heading N, counted from the start."},
    {C::paragraph,
     u"paragraph",
     {.name = u"N", .kind = Kind::number, .least = 1.0, .most = 9999999.0, .isWhole = true},
     u"Go to the paragraph N, counted from the start."},
    {C::show, u"show", nothing, u"Show the prompter."},
    {C::hide, u"hide", nothing, u"Hide the prompter."},
    {C::minimize, u"minimize", nothing, u"Fold it into the strip."},
    {C::expand, u"expand", nothing, u"Unfold it."},
    {C::settings, u"settings", nothing, u"Open the settings."},
    {C::reading, u"reading", nothing, u"Open the reading options."},
    {C::keys,
     u"keys",
     {.name = u"on|off|toggle", .choices = switchings},
     u"Show the prompter's keys over the text, or not."},
    {C::paste, u"paste", nothing, u"Show the clipboard's text."},
    {C::source,
     u"source",
     {.name = u"obsidian|clipboard", .choices = sources},
     u"Show what this source has."},
    {C::black,
     u"black",
     {.name = u"on|off|toggle", .choices = switchings},
     u"Black the text out, or bring it back."},
    {C::guide,
     u"guide",
     {.name = u"none|marker|band [LINES]", .choices = guides},
     u"Mark the line that is being read.",
     guideTails},
    {C::eyeLine,
     u"eyeline",
     {.name = u"second|N",
      .choices = eyeLines,
      .kind = Kind::number,
      .least = 100.0 * ReadingOptions::leastEyeLine,
      .most = 100.0 * ReadingOptions::mostEyeLine},
     u"Read at the second line, or N percent down."},
    {C::countdown,
     u"countdown",
     {.name = u"N",
      .kind = Kind::number,
      .most = ReadingOptions::mostCountdownSeconds,
      .isWhole = true},
     u"Count N seconds down before it moves; 0: none."},
    {C::atEnd,
     u"at-end",
     {.name = u"stand|stop|round", .choices = ends},
     u"At the end stand, stop, or begin again."},
    {C::glide,
     u"glide",
     {.name = u"on|off", .choices = switchStates},
     u"Ease jumps to headings, top and end, or not."},
    {C::mirror,
     u"mirror",
     {.name = u"none|horizontal|vertical|both", .choices = mirrorWays},
     u"Turn the text over, for glass and mirrors."},
    {C::opacity,
     u"opacity",
     {.name = u"N",
      .kind = Kind::number,
      .least = 100.0 * ReadingOptions::leastGroundOpacity,
      .most = 100.0},
     u"Let the desktop through behind the text."},
    {C::clickThrough,
     u"click-through",
     {.name = u"on|off", .choices = switchStates},
     u"Let the mouse through the text, or not."},
    {C::font,
     u"font",
     {.name = u"default|FAMILY", .choices = fonts, .kind = Kind::phrase},
     u"Show the text in this font."},
    {C::lineSpacing,
     u"line-spacing",
     {.name = u"N",
      .kind = Kind::number,
      .least = ReadingOptions::leastLineSpacing,
      .most = ReadingOptions::mostLineSpacing},
     u"Make lines N times as high, from 1 to 2."},
    {C::distance,
     u"distance",
     {.name = u"CM",
      .kind = Kind::number,
      .least = ReadingOptions::leastReadingDistance,
      .most = ReadingOptions::mostReadingDistance},
     u"Say how far away the text is read."},
    {C::suggest, u"suggest", nothing, u"Size the text for that distance."},
    {C::open, u"open", nothing, u"Ask for a file, and show it."},
    {C::latest,
     u"latest",
     {.name = u"[N|clear]",
      .choices = listDeeds,
      .kind = Kind::number,
      .least = 1.0,
      .most = 10.0,
      .isWhole = true,
      .isOptional = true},
     u"List the latest scripts, or show the N-th."},
    {C::continueReading, u"continue", nothing, u"Go on where this script was left."},
    {C::mediaKeys,
     u"media-keys",
     {.name = u"on|off", .choices = switchStates},
     u"Let media keys and the desktop's player drive it."},
    {C::remote,
     u"remote",
     {.name = u"DEED", .choices = remoteDeeds},
     u"Let phones drive it by a page; see below.",
     remoteTails},
    {C::quit, u"quit", nothing, u"End the program."},
    {C::status, u"status", nothing, u"Print its state as one JSON object."},
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

constexpr CommandSpec commands[] = {
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
        .actions = actions,
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

template <typename Entry>
const Entry* entryNamed(std::span<const Entry> entries, QStringView name) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.name == name; });
    return found == entries.end() ? nullptr : &*found;
}

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

std::span<const ControlAction> controlActions() {
    return actions;
}

const ControlAction* controlActionNamed(QStringView name) {
    return entryNamed(controlActions(), name);
}

} // namespace tessaline

#include "cli/ControlActions.h"

#include "cli/ControlRequest.h"
#include "settings/ReadingOptions.h"

namespace tessaline {

namespace {

using Kind = CommandValue::Kind;

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

} // namespace

std::span<const ControlAction> controlActions() {
    return actions;
}

const ControlAction* controlActionNamed(QStringView name) {
    return entryNamed(controlActions(), name);
}

} // namespace tessaline

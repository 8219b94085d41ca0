#include "cli/CommandLine.h"

#include "cli/CommandArguments.h"
#include "cli/CommandTable.h"
#include "cli/HelpText.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

CommandLine::Mistake mistake(const CommandSpec& spec, const QString& what) {
    const QString command = spec.name.isEmpty() ? QString() : u' ' + spec.name.toString();
    return {u"%1. Try 'tessaline%2 --help'."_s.arg(what, command)};
}

/// Sets what the options name. Returns what is wrong with one of them, if anything.
QString applyOptions(const CommandArguments& arguments, RenderRequest& request) {
    if (const auto name = arguments.value(u"format")) {
        const auto format = renderFormatNamed(*name);
        if (!format) return u"unknown format '%1'; there are json, html and png"_s.arg(*name);
        request.format = *format;
    }
    if (const auto text = arguments.value(u"font-size")) {
        request.fontSize = text->toDouble(); // 0 when it is no number
        // Written so that NaN fails as well.
        if (!(request.fontSize > 0 && request.fontSize <= RenderRequest::largestFontSize)) {
            return u"font size '%1' is not a number above 0 and up to %2"_s.arg(
                *text, QString::number(RenderRequest::largestFontSize));
        }
    }
    if (const auto text = arguments.value(u"width")) {
        request.width = text->toInt(); // 0 when it is no whole number
        if (request.width < RenderRequest::leastWidth || request.width > RenderRequest::mostWidth) {
            return u"width '%1' is not a whole number from %2 to %3"_s.arg(
                *text, QString::number(RenderRequest::leastWidth),
                QString::number(RenderRequest::mostWidth));
        }
    }
    if (const auto path = arguments.value(u"output")) {
        if (path->isEmpty()) return u"option '--output' needs the name of a file"_s;
        if (*path != "-"_L1) request.output = *path;
    }
    return {};
}

CommandLine::Request parseRender(const CommandSpec& spec, const CommandArguments& arguments) {
    if (arguments.operands.size() < spec.leastOperands)
        return mistake(spec, u"render needs a FILE, or '-' for standard input"_s);
    RenderRequest request;
    request.input = arguments.operands.first();
    const QString error = applyOptions(arguments, request);
    if (!error.isEmpty()) return mistake(spec, error);
    return request;
}

CommandLine::Request parseControl(const CommandSpec& spec, const CommandArguments& arguments) {
    QString error;
    const auto request = ControlRequest::parse(arguments.operands, &error);
    if (!request) return mistake(spec, error);
    return *request;
}

CommandLine::Request parseShow(const CommandSpec& spec, const CommandArguments& arguments) {
    CommandLine::Show show{.follow = arguments.has(u"follow")};
    if (!arguments.operands.isEmpty()) show.input = arguments.operands.first();
    if (show.follow && !show.input) return mistake(spec, u"option '--follow' needs a FILE"_s);
    if (show.follow && *show.input == "-"_L1)
        return mistake(spec, u"standard input cannot be followed"_s);
    return show;
}

} // namespace

QString CommandLine::version() {
    return u"" TESSALINE_VERSION ""_s;
}

CommandLine::Request CommandLine::parse(const QStringList& arguments) {
    const CommandSpec* command = arguments.isEmpty() ? nullptr : commandNamed(arguments.first());
    const CommandSpec& spec = command ? *command : programSpec();
    const auto parsed = CommandArguments::parse(spec, command ? arguments.sliced(1) : arguments);

    if (!parsed.error.isEmpty()) return mistake(spec, parsed.error);
    if (parsed.has(u"help")) return Print{helpText(spec)};
    if (parsed.has(u"version")) return Print{u"tessaline "_s + version() + u'\n'};
    if (!command) return parseShow(spec, parsed);
    return spec.actions.empty() ? parseRender(spec, parsed) : parseControl(spec, parsed);
}

} // namespace tessaline

#include "app/ReadingCommands.h"

#include "cli/ControlRequest.h"
#include "settings/ReadingOptions.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

void takeOverFinish(const QString& when, ReadingOptions& options) {
    options.finishAt = timeOfDayFromText(when);
    if (!options.finishAt) options.finishMinutes = when.chopped(1).toDouble();
}

void takeOverPace(const ControlRequest& request, ReadingOptions& options) {
    decode(JsonValue{request.argument}, options.pace);
    if (request.detail.isEmpty()) return;
    if (options.pace == PaceMode::words) options.wordsPerMinute = request.detail.toDouble();
    if (options.pace == PaceMode::finish) takeOverFinish(request.detail, options);
}

void takeOverGuide(const ControlRequest& request, ReadingOptions& options) {
    decode(JsonValue{request.argument}, options.guide);
    if (!request.detail.isEmpty()) options.guideLines = request.detail.toDouble();
}

void takeOverEyeLine(const ControlRequest& request, ReadingOptions& options) {
    options.eyeLine.reset();
    if (request.argument != "second"_L1) options.eyeLine = request.number() / 100.0;
}

void takeOverFont(const ControlRequest& request, ReadingOptions& options) {
    options.fontFamily.reset();
    if (request.argument != "default"_L1) options.fontFamily = request.argument;
}

} // namespace

void takeOver(const ControlRequest& request, ReadingOptions& options) {
    switch (request.command) {
    case ControlCommand::pace:
        return takeOverPace(request, options);
    case ControlCommand::guide:
        return takeOverGuide(request, options);
    case ControlCommand::eyeLine:
        return takeOverEyeLine(request, options);
    case ControlCommand::countdown:
        options.countdownSeconds = request.number();
        return;
    case ControlCommand::atEnd:
        decode(JsonValue{request.argument}, options.atEnd);
        return;
    case ControlCommand::glide:
        options.glide = request.argument == "on"_L1;
        return;
    case ControlCommand::mirror:
        decode(JsonValue{request.argument}, options.mirror);
        return;
    case ControlCommand::opacity:
        options.groundOpacity = request.number() / 100.0;
        return;
    case ControlCommand::clickThrough:
        options.clickThrough = request.argument == "on"_L1;
        return;
    case ControlCommand::font:
        return takeOverFont(request, options);
    case ControlCommand::lineSpacing:
        options.lineSpacing = request.number();
        return;
    case ControlCommand::distance:
        options.readingDistance = request.number();
        return;
    case ControlCommand::mediaKeys:
        options.mediaKeys = request.argument == "on"_L1;
        return;
    default:
        return;
    }
}

} // namespace tessaline

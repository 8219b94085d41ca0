#include "cli/ControlAnswer.h"

#include "settings/JsonWriter.h"

#include <optional>
#include <type_traits>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

void write(JsonWriter& json, bool value) {
    json.boolean(value);
}

void write(JsonWriter& json, double value) {
    json.real(value);
}

void write(JsonWriter& json, const std::optional<double>& number) {
    number ? json.real(*number) : json.null();
}

void write(JsonWriter& json, qint64 count) {
    json.number(double(count));
}

void write(JsonWriter& json, int count) {
    json.number(count);
}

void write(JsonWriter& json, const QString& text) {
    json.string(text);
}

void write(JsonWriter& json, const QStringList& texts) {
    json.beginArray();
    for (const QString& text : texts)
        json.string(text);
    json.endArray();
}

template <typename Choice>
requires std::is_enum_v<Choice>
void write(JsonWriter& json, Choice choice) {
    json.string(rawValue(choice));
}

QString json(const PrompterStatus& status) {
    QByteArray bytes;
    JsonWriter json(bytes, JsonWriter::Layout::compact);
    json.beginObject();
    PrompterStatus::visitFields(status, [&json](const char* name, const auto& value) {
        json.key(name);
        write(json, value);
    });
    json.endObject();
    return QString::fromUtf8(bytes);
}

QString position(const PrompterStatus& status) {
    return u"position %1 of %2"_s.arg(status.scrollPosition, 0, 'f', 1)
        .arg(status.maximumScrollPosition, 0, 'f', 1);
}

QString finish(const PrompterStatus& status) {
    if (status.finish.endsWith(u'm')) return u"finish in %1 min"_s.arg(status.finish.chopped(1));
    return "finish at "_L1 + status.finish +
           (status.finishTomorrow ? " tomorrow: that time has passed today"_L1 : ""_L1);
}

QString pace(const PrompterStatus& status) {
    switch (status.pace) {
    case PaceMode::speed:
        return u"speed %1"_s.arg(status.speed);
    case PaceMode::words:
        return u"%1 words a minute"_s.arg(status.wantedWordsPerMinute);
    case PaceMode::finish:
        return finish(status);
    }
    Q_UNREACHABLE();
}

QString guide(const PrompterStatus& status) {
    const QString text = "guide "_L1 + rawValue(status.guide);
    return status.guide == ReadingGuide::band ? u"%1 %2"_s.arg(text).arg(status.guideLines) : text;
}

QString eyeLine(const PrompterStatus& status) {
    const bool isSecond = status.eyeLine == "second"_L1;
    return isSecond ? u"eye line at the second line"_s
                    : u"eye line at %1 percent"_s.arg(status.eyeLine);
}

QString countdown(const PrompterStatus& status) {
    return status.countdown == 0 ? u"countdown off"_s : u"countdown %1 s"_s.arg(status.countdown);
}

QString opacity(const PrompterStatus& status) {
    const QString text = u"opacity %1 percent"_s.arg(status.opacity);
    const bool isSeen = status.opacityShown == status.opacity;
    return isSeen ? text : text + ", which needs a compositing manager: the ground is opaque"_L1;
}

QString clickThrough(const PrompterStatus& status) {
    if (!status.clickThrough) return u"click-through off"_s;
    return status.clickedThrough
               ? u"click-through on"_s
               : u"click-through on, which this display server cannot do: the text keeps the mouse"_s;
}

QString font(const PrompterStatus& status) {
    const QString text = "font "_L1 + status.font;
    return status.fontShown == status.font
               ? text
               : text + ", which is not installed: the default is shown"_L1;
}

QString remote(const ControlRequest& request, const PrompterStatus& status) {
    if (request.argument == "code"_L1) return status.remoteAddress;
    if (status.remote == "failed"_L1) return "remote page failed: "_L1 + status.remoteProblem;
    if (status.remote != "on"_L1) return u"remote page off"_s;
    return u"remote page at %1, connected: %2"_s.arg(status.remoteAddress).arg(status.remotePages);
}

QString latest(const ControlRequest& request, const PrompterStatus& status) {
    if (request.argument == "clear"_L1) return u"list cleared"_s;
    if (!request.argument.isEmpty()) return u"opened "_s + status.file;
    QStringList lines;
    for (const QString& path : status.latest)
        lines += u"%1 %2"_s.arg(lines.size() + 1).arg(path);
    return lines.isEmpty() ? u"no latest scripts"_s : lines.join(u'\n');
}

} // namespace

QString controlAnswer(const ControlRequest& request, const PrompterStatus& status) {
    switch (request.command) {
    case ControlCommand::toggle:
    case ControlCommand::play:
    case ControlCommand::pause:
        return status.autoScroll ? u"auto-scroll on"_s : u"auto-scroll off"_s;
    case ControlCommand::faster:
    case ControlCommand::slower:
    case ControlCommand::pace:
        return pace(status);
    case ControlCommand::speed:
        return u"speed %1"_s.arg(status.speed);
    case ControlCommand::rate:
        return u"rate "_s + rawValue(status.rate);
    case ControlCommand::up:
    case ControlCommand::down:
    case ControlCommand::scroll:
    case ControlCommand::top:
    case ControlCommand::nextHeading:
    case ControlCommand::previousHeading:
    case ControlCommand::heading:
    case ControlCommand::paragraph:
        return position(status);
    case ControlCommand::show:
        return u"shown"_s;
    case ControlCommand::hide:
        return u"hidden"_s;
    case ControlCommand::minimize:
    case ControlCommand::expand:
        return status.collapsed ? u"minimized"_s : u"expanded"_s;
    case ControlCommand::settings:
        return u"settings shown"_s;
    case ControlCommand::reading:
        return u"reading options shown"_s;
    case ControlCommand::keys:
        return status.keys ? u"keys shown"_s : u"keys hidden"_s;
    case ControlCommand::paste:
        return u"pasted"_s;
    case ControlCommand::source:
        return u"source "_s + rawValue(status.source);
    case ControlCommand::black:
        return status.black ? u"text blacked out"_s : u"text shown"_s;
    case ControlCommand::guide:
        return guide(status);
    case ControlCommand::eyeLine:
        return eyeLine(status);
    case ControlCommand::countdown:
        return countdown(status);
    case ControlCommand::atEnd:
        return "at the end: "_L1 + rawValue(status.atEnd);
    case ControlCommand::glide:
        return status.glide ? u"glide on"_s : u"glide off"_s;
    case ControlCommand::mirror:
        return "mirror "_L1 + rawValue(status.mirror);
    case ControlCommand::opacity:
        return opacity(status);
    case ControlCommand::clickThrough:
        return clickThrough(status);
    case ControlCommand::font:
        return font(status);
    case ControlCommand::lineSpacing:
        return u"line spacing %1"_s.arg(status.lineSpacing);
    case ControlCommand::distance:
        return u"reading distance %1 cm"_s.arg(status.distance);
    case ControlCommand::suggest:
        return status.suggestion;
    case ControlCommand::open:
        return u"asking for a file"_s;
    case ControlCommand::latest:
        return latest(request, status);
    case ControlCommand::continueReading:
        return u"continued, "_s + position(status);
    case ControlCommand::mediaKeys:
        return status.mediaKeys ? u"media keys on"_s : u"media keys off"_s;
    case ControlCommand::remote:
        return remote(request, status);
    case ControlCommand::quit:
        return u"ending"_s;
    case ControlCommand::status:
        return json(status);
    }
    Q_UNREACHABLE();
}

} // namespace tessaline

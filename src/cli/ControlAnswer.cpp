#include "cli/ControlAnswer.h"

#include "settings/JsonWriter.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

void write(JsonWriter& json, bool value) {
    json.boolean(value);
}

void write(JsonWriter& json, double value) {
    json.real(value);
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

void write(JsonWriter& json, SourceType source) {
    json.string(rawValue(source));
}

void write(JsonWriter& json, ScrollRate rate) {
    json.string(rawValue(rate));
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

} // namespace

QString controlAnswer(const ControlRequest& request, const PrompterStatus& status) {
    switch (request.command) {
    case ControlCommand::toggle:
    case ControlCommand::play:
    case ControlCommand::pause:
        return status.autoScroll ? u"auto-scroll on"_s : u"auto-scroll off"_s;
    case ControlCommand::faster:
    case ControlCommand::slower:
    case ControlCommand::speed:
        return u"speed %1"_s.arg(status.speed);
    case ControlCommand::rate:
        return u"rate "_s + rawValue(status.rate);
    case ControlCommand::up:
    case ControlCommand::down:
    case ControlCommand::top:
    case ControlCommand::nextHeading:
    case ControlCommand::previousHeading:
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
    case ControlCommand::paste:
        return u"pasted"_s;
    case ControlCommand::source:
        return u"source "_s + rawValue(status.source);
    case ControlCommand::quit:
        return u"ending"_s;
    case ControlCommand::status:
        return json(status);
    }
    Q_UNREACHABLE();
}

} // namespace tessaline

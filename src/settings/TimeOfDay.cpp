#include "settings/TimeOfDay.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int minutesPerHour = 60;

} // namespace

QString timeOfDayText(TimeOfDay time) {
    return QTime(time.minutes / minutesPerHour, time.minutes % minutesPerHour).toString(u"HH:mm"_s);
}

std::optional<TimeOfDay> timeOfDayFromText(QStringView text) {
    const QTime time = QTime::fromString(text.toString(), u"H:mm"_s);
    if (!time.isValid()) return std::nullopt;
    return TimeOfDay{time.hour() * minutesPerHour + time.minute()};
}

bool hasPassed(TimeOfDay time, QTime now) {
    return now.hour() * minutesPerHour + now.minute() >= time.minutes;
}

JsonValue encode(TimeOfDay time) {
    return {timeOfDayText(time)};
}

bool decode(const JsonValue& value, TimeOfDay& time) {
    const auto* text = value.as<QString>();
    const auto read = text ? timeOfDayFromText(*text) : std::nullopt;
    if (read) time = *read;
    return read.has_value();
}

} // namespace tessaline

#pragma once

#include "settings/JsonValue.h"

#include <QString>
#include <QStringView>
#include <QTime>

#include <optional>

namespace tessaline {

/// A time on the clock, without a date.
struct TimeOfDay {
    int minutes = 0; ///< since midnight, below 1440

    bool operator==(const TimeOfDay&) const = default;
};

/// As text: "09:05".
QString timeOfDayText(TimeOfDay time);

/// The time that a text such as "15:30" or "9:05" stands for, or none.
std::optional<TimeOfDay> timeOfDayFromText(QStringView text);

/// Whether this time is over today, so that the next one is tomorrow's.
bool hasPassed(TimeOfDay time, QTime now);

JsonValue encode(TimeOfDay time);
bool decode(const JsonValue& value, TimeOfDay& time);

} // namespace tessaline

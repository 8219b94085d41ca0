#include "analytics/Iso8601.h"

#include <algorithm>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype lengthToSeconds = 19; // 2026-11-20T21:44:30

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

bool isDigits(QStringView text) {
    return std::all_of(text.begin(), text.end(), isDigit);
}

/// Takes a fraction of a second off the front of `rest`. Milliseconds are what we keep of it.
std::optional<int> takeMilliseconds(QStringView& rest) {
    if (!rest.startsWith(u'.') && !rest.startsWith(u',')) return 0;
    const auto* const end = std::find_if_not(rest.begin() + 1, rest.end(), isDigit);
    const QStringView digits(rest.begin() + 1, end);
    if (digits.isEmpty()) return std::nullopt;
    rest = rest.mid(digits.size() + 1);
    return (digits.left(3).toString() + u"00"_s).left(3).toInt();
}

/// Seconds ahead of UTC.
std::optional<int> offset(QStringView zone) {
    if (zone == u"Z") return 0;
    if (!zone.startsWith(u'+') && !zone.startsWith(u'-')) return std::nullopt;
    QString digits = zone.mid(1).toString();
    if (digits.size() == 5 && digits.at(2) == u':') digits.remove(2, 1);
    if (digits.size() == 2) digits += u"00"_s;
    if (digits.size() != 4 || !isDigits(digits)) return std::nullopt;
    const int hours = digits.left(2).toInt();
    const int minutes = digits.right(2).toInt();
    if (hours > 23 || minutes > 59) return std::nullopt;
    const int seconds = (hours * 60 + minutes) * 60;
    return zone.startsWith(u'-') ? -seconds : seconds;
}

} // namespace

QString toIso8601(const QDateTime& moment) {
    const QDateTime utc = moment.toUTC();
    const int year = utc.date().year();
    if (year < 1) return u"0001-01-01T00:00:00Z"_s;
    if (year > 9999) return u"9999-12-31T23:59:59Z"_s;
    return utc.toString(Qt::ISODate);
}

std::optional<QDateTime> fromIso8601(QStringView text) {
    if (text.size() <= lengthToSeconds || text[10] != u'T') return std::nullopt;
    QStringView rest = text.mid(lengthToSeconds);
    const auto milliseconds = takeMilliseconds(rest);
    const auto ahead = offset(rest);
    const QDate date = QDate::fromString(text.left(10), Qt::ISODate);
    const QTime time = QTime::fromString(text.mid(11, 8), Qt::ISODate);
    if (!milliseconds || !ahead || !date.isValid() || !time.isValid()) return std::nullopt;
    return QDateTime(date, time.addMSecs(*milliseconds), Qt::UTC).addSecs(-*ahead);
}

} // namespace tessaline

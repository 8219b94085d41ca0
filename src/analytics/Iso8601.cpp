#include "analytics/Iso8601.h"

namespace tessaline {

namespace {

/// Takes a text apart from its front. Qt's own reading of dates takes ten times as long.
struct Reader {
    QByteArrayView rest;
    bool isValid = true;

    bool take(char character) {
        if (rest.isEmpty() || rest.front() != character) return false;
        rest = rest.sliced(1);
        return true;
    }

    void expect(char character) { isValid = take(character) && isValid; }

    bool hasDigit() const { return !rest.isEmpty() && rest.front() >= '0' && rest.front() <= '9'; }

    int number(int digits) {
        int value = 0;
        for (; digits > 0 && hasDigit(); --digits) {
            value = value * 10 + (rest.front() - '0');
            rest = rest.sliced(1);
        }
        isValid = digits == 0 && isValid;
        return value;
    }

    /// What we keep of a fraction of a second.
    int milliseconds() {
        if (!take('.') && !take(',')) return 0;
        int value = number(1) * 100;
        for (int unit = 10; hasDigit(); unit /= 10)
            value += number(1) * unit;
        return value;
    }

    /// Ahead of UTC.
    int seconds() {
        if (take('Z')) return 0;
        const bool isBehind = take('-');
        if (!isBehind) expect('+');
        const int hours = number(2);
        const int minutes = take(':') || hasDigit() ? number(2) : 0;
        isValid = hours < 24 && minutes < 60 && isValid;
        return (hours * 60 + minutes) * (isBehind ? -60 : 60);
    }
};

void put(char* at, int number, int digits) {
    for (; digits > 0; number /= 10)
        at[--digits] = char('0' + number % 10);
}

} // namespace

QByteArray toIso8601(const QDateTime& moment) {
    const QDateTime utc = moment.toUTC();
    const QTime time = utc.time();
    int year = 0;
    int month = 0;
    int day = 0;
    utc.date().getDate(&year, &month, &day);
    if (year < 1) return "0001-01-01T00:00:00Z";
    if (year > 9999) return "9999-12-31T23:59:59Z";
    QByteArray text("0000-00-00T00:00:00Z");
    put(text.data(), year, 4);
    put(text.data() + 5, month, 2);
    put(text.data() + 8, day, 2);
    put(text.data() + 11, time.hour(), 2);
    put(text.data() + 14, time.minute(), 2);
    put(text.data() + 17, time.second(), 2);
    return text;
}

std::optional<QDateTime> fromIso8601(QByteArrayView text) {
    Reader reader{text};
    const auto part = [&reader](int digits, char after) {
        const int value = reader.number(digits);
        if (after != 0) reader.expect(after);
        return value;
    };
    const int year = part(4, '-');
    const int month = part(2, '-');
    const QDate date(year, month, part(2, 'T'));
    const int hour = part(2, ':');
    const int minute = part(2, ':');
    const int second = part(2, 0);
    const QTime time(hour, minute, second, reader.milliseconds());
    const int ahead = reader.seconds();
    if (!reader.isValid || !reader.rest.isEmpty() || !date.isValid() || !time.isValid())
        return std::nullopt;
    // Each way to name UTC is one that some versions of Qt are slow at, or warn of.
    static const QDateTime epoch = QDateTime::fromSecsSinceEpoch(0).toUTC();
    return epoch.addDays(epoch.date().daysTo(date))
        .addMSecs(time.msecsSinceStartOfDay() - ahead * qint64{1000});
}

} // namespace tessaline

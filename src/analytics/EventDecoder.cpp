#include "analytics/EventDecoder.h"

#include "analytics/Iso8601.h"

#include <nlohmann/json.hpp>

#include <string>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
using nlohmann::json;

namespace {

/// Values nested deeper than this are not ours.
constexpr int greatestDepth = 64;

/// Follows the parser through the array. Each function answers whether to go on.
class EventReader final : public nlohmann::json_sax<json> {
public:
    explicit EventReader(const EventVisitor& visitor) : visit(visitor) {}

    const QString& problem() const { return description; }

    bool null() override { return scalar(); }
    bool boolean(bool /*value*/) override { return scalar(); }
    bool number_integer(number_integer_t /*value*/) override { return scalar(); }
    bool number_unsigned(number_unsigned_t /*value*/) override { return scalar(); }
    bool number_float(number_float_t /*value*/, const string_t& /*text*/) override {
        return scalar();
    }
    bool binary(binary_t& /*value*/) override { return scalar(); }

    bool string(string_t& value) override {
        if (depth == inProperties && memberKey == propertiesKey) {
            event.properties.insert(propertyKey, QString::fromStdString(value));
            return true;
        }
        if (depth != inEvent) return scalar();
        if (memberKey == nameKey) {
            event.name = QString::fromStdString(value);
            hasName = true;
            return true;
        }
        return memberKey == timestampKey ? takeTimestamp(QString::fromStdString(value)) : scalar();
    }

    bool key(string_t& value) override {
        if (depth == inEvent) memberKey = value;
        if (depth == inProperties) propertyKey = QString::fromStdString(value);
        return true;
    }

    bool start_object(std::size_t /*elements*/) override {
        const bool isEvent = depth == inHistory;
        const bool isProperties = depth == inEvent && memberKey == propertiesKey;
        if (isEvent) startEvent();
        if (isProperties) {
            event.properties.clear();
            hasProperties = true;
        }
        return isEvent || isProperties ? enter() : structure();
    }

    bool end_object() override {
        --depth;
        return depth == inHistory ? endEvent() : true;
    }

    bool start_array(std::size_t /*elements*/) override {
        return depth == outside ? enter() : structure();
    }

    bool end_array() override {
        --depth;
        return true;
    }

    bool parse_error(std::size_t position, const std::string& /*token*/,
                     const json::exception& /*exception*/) override {
        return fail(u"Invalid JSON at byte %1"_s.arg(position));
    }

private:
    static constexpr const char* nameKey = "name";
    static constexpr const char* timestampKey = "timestamp";
    static constexpr const char* propertiesKey = "properties";

    // How many values are open around the present one.
    static constexpr int outside = 0;
    static constexpr int inHistory = 1;
    static constexpr int inEvent = 2;
    static constexpr int inProperties = 3;

    bool fail(const QString& what) {
        description = what;
        return false;
    }

    bool failInEvent(const QString& what) {
        return fail(u"%1 of event %2"_s.arg(what).arg(number));
    }

    bool enter() { return ++depth <= greatestDepth || fail(u"The JSON is nested too deeply"_s); }

    /// Whether a value that is not of the form of the present place may stand there.
    bool isPassedOver() {
        if (depth == outside) return fail(u"The JSON is not an array"_s);
        if (depth == inHistory) return fail(u"Event %1 is not an object"_s.arg(number + 1));
        const bool isOurs =
            memberKey == nameKey || memberKey == timestampKey || memberKey == propertiesKey;
        return !isOurs ||
               failInEvent(u"Invalid value for \"%1\""_s.arg(QString::fromStdString(memberKey)));
    }

    bool scalar() { return isPassedOver(); }
    bool structure() { return isPassedOver() && enter(); }

    void startEvent() {
        event = {};
        memberKey.clear();
        hasName = hasProperties = false;
        ++number;
    }

    bool takeTimestamp(const QString& text) {
        const auto moment = fromIso8601(text);
        if (!moment) return failInEvent(u"Invalid value for \"timestamp\""_s);
        event.timestamp = *moment;
        return true;
    }

    bool endEvent() {
        if (!hasName || !hasProperties || !event.timestamp.isValid())
            return failInEvent(u"Missing value"_s);
        visit(event);
        return true;
    }

    const EventVisitor& visit;
    QString description;
    int depth = outside;
    qint64 number = 0; ///< of the present event, from 1
    AnalyticsEvent event;
    bool hasName = false;
    bool hasProperties = false;
    std::string memberKey;
    QString propertyKey;
};

} // namespace

bool decodeEvents(const QByteArray& bytes, const EventVisitor& visit, QString* error) {
    EventReader reader(visit);
    const bool isRead = nlohmann::json::sax_parse(bytes.begin(), bytes.end(), &reader);
    // The parser takes a NUL for the end of the text.
    const qsizetype nul = isRead ? bytes.indexOf('\0') : -1;
    if (isRead && nul < 0) return true;
    if (error) *error = isRead ? u"Invalid JSON at byte %1"_s.arg(nul + 1) : reader.problem();
    return false;
}

} // namespace tessaline

#include "analytics/EventDecoder.h"

#include "analytics/Iso8601.h"
#include "settings/JsonReader.h"

#include <string>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Values nested deeper than this are not ours.
constexpr int greatestDepth = 64;

/// Follows the array as it is read.
class EventReader final : public JsonVisitor {
public:
    explicit EventReader(const EventVisitor& visitor) : visit(visitor) {}

    const QString& problem() const { return description; }

    bool null() override { return scalar(); }
    bool boolean(bool /*value*/) override { return scalar(); }
    bool number(double /*value*/) override { return scalar(); }

    bool string(const std::string& value) override {
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

    bool key(const std::string& value) override {
        if (depth == inEvent) memberKey = value;
        if (depth == inProperties) propertyKey = QString::fromStdString(value);
        return true;
    }

    bool beginObject() override {
        const bool isEvent = depth == inHistory;
        const bool isProperties = depth == inEvent && memberKey == propertiesKey;
        if (isEvent) startEvent();
        if (isProperties) {
            event.properties.clear();
            hasProperties = true;
        }
        return isEvent || isProperties ? enter() : structure();
    }

    bool endObject() override {
        --depth;
        return depth == inHistory ? endEvent() : true;
    }

    bool beginArray() override { return depth == outside ? enter() : structure(); }

    bool endArray() override {
        --depth;
        return true;
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
        return fail(u"%1 of event %2"_s.arg(what).arg(eventNumber));
    }

    bool enter() { return ++depth <= greatestDepth || fail(u"The JSON is nested too deeply"_s); }

    /// Whether a value that is not of the form of the present place may stand there.
    bool isPassedOver() {
        if (depth == outside) return fail(u"The JSON is not an array"_s);
        if (depth == inHistory) return fail(u"Event %1 is not an object"_s.arg(eventNumber + 1));
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
        ++eventNumber;
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
    qint64 eventNumber = 0; ///< of the present event, from 1
    AnalyticsEvent event;
    bool hasName = false;
    bool hasProperties = false;
    std::string memberKey;
    QString propertyKey;
};

} // namespace

bool decodeEvents(const QByteArray& bytes, const EventVisitor& visit, QString* error) {
    EventReader reader(visit);
    QString invalid;
    if (visitJson(bytes, reader, invalid)) return true;
    if (error) *error = reader.problem().isEmpty() ? invalid : reader.problem();
    return false;
}

} // namespace tessaline

#pragma once

#include "analytics/UsageRecorder.h"
#include "settings/JsonReader.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessaline {

/// The events of a history as we write them; one that is no history is a failure.
inline std::vector<AnalyticsEvent> decoded(const QByteArray& bytes) {
    std::vector<AnalyticsEvent> events;
    QString error;
    const auto json = parseJson(bytes, &error);
    const auto* array = json ? json->as<JsonValue::Array>() : nullptr;
    if (!array) {
        ADD_FAILURE() << "no history: " << error.toStdString() << "\n" << bytes.toStdString();
        return events;
    }
    for (const JsonValue& event : *array) {
        const auto text = [&event](QStringView key) {
            const JsonValue* value = event.find(key);
            EXPECT_TRUE(value && value->as<QString>());
            return value && value->as<QString>() ? *value->as<QString>() : QString();
        };
        QMap<QString, QString> properties;
        const JsonValue* members = event.find(u"properties");
        EXPECT_TRUE(members && members->as<JsonValue::Object>());
        for (const auto& [name, value] : *members->as<JsonValue::Object>())
            properties[name] = *value.as<QString>();
        // Seconds of UTC, in the one form that is written.
        const auto moment = QDateTime::fromString(text(u"timestamp"), Qt::ISODate);
        EXPECT_TRUE(moment.isValid());
        events.push_back({text(u"name"), moment, properties});
    }
    return events;
}

} // namespace tessaline

#pragma once

#include "settings/SettingsCodec.h"

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>

namespace tessaline {

/// The settings that `json` holds; fails the test and gives the defaults when it holds none.
inline PersistedSettings decoded(const QByteArray& json) {
    QString error;
    const auto settings = decodeSettings(json, &error);
    EXPECT_TRUE(settings.has_value()) << json.toStdString() << ": " << error.toStdString();
    return settings.value_or(PersistedSettings());
}

inline QString decodingError(const QByteArray& json) {
    QString error;
    EXPECT_EQ(decodeSettings(json, &error), std::nullopt) << json.left(200).toStdString();
    return error;
}

} // namespace tessaline

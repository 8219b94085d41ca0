#pragma once

#include <QDateTime>
#include <QMap>
#include <QString>

namespace tessaline {

/// Something that the user did or that happened to the program.
struct AnalyticsEvent {
    QString name;        ///< such as "content_loaded"
    QDateTime timestamp; ///< left out by those who record: the recorder fills in its own time
    QMap<QString, QString> properties;

    bool operator==(const AnalyticsEvent&) const = default;
};

} // namespace tessaline

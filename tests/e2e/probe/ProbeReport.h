#pragma once

#include <QJsonObject>
#include <QString>

namespace tessaline {

/// Prints one event as a line of JSON, for the scenario that started the probe.
void report(const QString& event, QJsonObject details);

} // namespace tessaline

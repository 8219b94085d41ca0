#pragma once

#include "analytics/AnalyticsEvent.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace tessaline {

/// Receives the events of a history, one by one.
using EventVisitor = std::function<void(const AnalyticsEvent&)>;

/// Reads a history: a JSON array of events. Unknown keys of an event are passed over. Takes no
/// memory that grows with the history, however deep or long the values in it. Any other departure
/// from the format ends the reading: false is returned, `error` receives a one-line description,
/// and what the visitor has received is to be forgotten. Any thread.
bool decodeEvents(const QByteArray& bytes, const EventVisitor& visit, QString* error = nullptr);

} // namespace tessaline

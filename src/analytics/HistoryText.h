#pragma once

#include "analytics/AnalyticsEvent.h"

#include <QByteArray>

namespace tessaline {

/// A history as its file holds it: a pretty-printed JSON array that events are appended to.
class HistoryText {
public:
    /// Costs no more for a long history than for a short one.
    void append(const AnalyticsEvent& event);

    /// The text so far, complete.
    const QByteArray& bytes() const { return text; }

    bool isEmpty() const { return empty; }

private:
    QByteArray text = QByteArrayLiteral("[\n]\n");
    bool empty = true;
};

} // namespace tessaline

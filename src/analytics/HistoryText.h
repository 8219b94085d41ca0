#pragma once

#include "analytics/AnalyticsEvent.h"
#include "settings/FilePieces.h"

#include <QByteArray>

#include <vector>

namespace tessaline {

/// A history as its file holds it: a pretty-printed JSON array that events are appended to. Takes a
/// small part of the file's size in memory.
class HistoryText {
public:
    /// Costs no more for a long history than for a short one.
    void append(const AnalyticsEvent& event);

    /// The text so far, complete. It has to live on, unchanged, until the last piece is taken.
    FilePieces pieces() const;

    /// All pieces, in bytes.
    qsizetype size() const;

    bool isEmpty() const { return empty; }

private:
    void packWhenLarge();
    QByteArray piece(std::size_t index) const;

    std::vector<QByteArray> packed; ///< compressed, the oldest events first
    qsizetype packedSize = 0;       ///< in bytes, before compression
    QByteArray latest = QByteArrayLiteral("[");
    bool empty = true;
};

} // namespace tessaline

#pragma once

#include "settings/FilePieces.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace tessaline {

struct AnalyticsEvent;

/// A history as its file holds it: a pretty-printed JSON array that events are appended to. Takes a
/// small part of the file's size in memory, and a copy shares it.
class HistoryText {
public:
    /// The events of a file that are later than `oldest`; `leftOut` tells whether there are others.
    /// Unknown keys of an event are passed over. None, with a one-line description in `error`, when
    /// the file departs from the format in any other way.
    static std::optional<HistoryText> read(const QByteArray& file, const QDateTime& oldest,
                                           bool& leftOut, QString& error);

    /// Costs no more for a long history than for a short one.
    void append(const AnalyticsEvent& event);

    /// The text so far, complete. It has to live on, unchanged, until the last piece is taken.
    FilePieces pieces() const;

    /// All pieces, in bytes.
    qsizetype size() const;

    bool isEmpty() const { return empty; }

private:
    template <typename Text, typename Properties>
    void append(const Text& name, const QDateTime& timestamp, const Properties& properties);
    void pack();
    QByteArray piece(std::size_t index) const;

    std::vector<QByteArray> packed; ///< compressed, the oldest events first
    qsizetype packedSize = 0;       ///< in bytes, before compression
    QByteArray latest = QByteArrayLiteral("[");
    bool empty = true;
};

} // namespace tessaline

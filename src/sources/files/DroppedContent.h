#pragma once

#include <QString>
#include <QStringList>

class QMimeData;

namespace tessaline {

/// What another program let fall on ours: files, or else a text.
struct DroppedContent {
    /// Whether there is anything in the data that can be taken. Reads none of it.
    static bool isIn(const QMimeData& data);

    static DroppedContent of(const QMimeData& data);

    QStringList paths; ///< of files on this machine, from the root
    int others = 0;    ///< how many things there are elsewhere
    QString text;      ///< where no files and no other things are named
};

} // namespace tessaline

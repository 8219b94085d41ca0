#pragma once

#include <QLoggingCategory>
#include <QString>
#include <QStringList>

namespace tessaline {

/// Collects what is logged while it lives, as "category: message". One at a time, main thread only.
class RecordedLog {
public:
    RecordedLog() { previous = qInstallMessageHandler(&RecordedLog::record); }
    ~RecordedLog() {
        qInstallMessageHandler(previous);
        lines().clear();
    }
    RecordedLog(const RecordedLog&) = delete;
    RecordedLog& operator=(const RecordedLog&) = delete;

    const QStringList& entries() const { return lines(); }

private:
    static QStringList& lines() {
        static QStringList recorded;
        return recorded;
    }

    static void record(QtMsgType /*type*/, const QMessageLogContext& context,
                       const QString& message) {
        lines() << QString::fromUtf8(context.category) + QStringLiteral(": ") + message;
    }

    QtMessageHandler previous;
};

} // namespace tessaline

#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace tessaline {

/// Where the one instance of a user on a display is met: a folder that belongs to that user alone,
/// and a name in it for the display. A plain value; any thread.
struct InstanceAddress {
    using Variable = std::function<QString(const char* name)>;

    /// The address of this session, by its environment variables: in XDG_RUNTIME_DIR or, without a
    /// usable one and while somebody is met there, below the folder for temporary files. Makes the
    /// folder. None, with the reason in
    /// `problem`, where there is no place that others cannot enter.
    static std::optional<InstanceAddress>
    ofSession(const Variable& variable, const QString& temporaryFolder, QString* problem);

    /// The same for this process.
    static std::optional<InstanceAddress> ofThisSession(QString* problem);

    /// Held by the instance for as long as it runs. The file stays.
    QString lockPath() const { return folder + u'/' + display + QStringLiteral(".lock"); }
    /// Where the instance listens.
    QString socketPath() const { return folder + u'/' + display + QStringLiteral(".socket"); }

    QString folder; ///< absolute; mode 0700
    QString display;
};

} // namespace tessaline

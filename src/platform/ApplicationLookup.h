#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tessaline {

/// Finds installed applications.
class ApplicationLookup {
public:
    virtual ~ApplicationLookup() = default;

    /// Where the applications with this bundle identifier are, the system's favourite first.
    virtual QStringList applicationPaths(const QString& bundleIdentifier) const = 0;

    /// Where the workspace would start the application with this identifier from, if it knows one.
    virtual std::optional<QString>
    workspaceApplicationPath(const QString& bundleIdentifier) const = 0;

    /// Whether an application that is not found is not installed.
    virtual bool knowsEveryApplication() const = 0;
};

} // namespace tessaline

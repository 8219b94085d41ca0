#pragma once

#include <QString>

#include <optional>

namespace tessaline {

/// What the installed program says about itself. Any thread.
class BundleInformation {
public:
    virtual ~BundleInformation() = default;

    /// The reverse-domain identifier, if the program has one.
    virtual std::optional<QString> identifier() const = 0;

    /// The text under a key such as "CFBundleShortVersionString", if there is one.
    virtual std::optional<QString> value(const QString& key) const = 0;

    /// The folder with the program's resource files, without a trailing slash, if there is one.
    virtual std::optional<QString> resourceFolder() const = 0;
};

} // namespace tessaline

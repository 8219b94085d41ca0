#pragma once

#include "platform/BundleInformation.h"

namespace tessaline {

/// What was compiled into the program, and the folder with the resources beside it or where an
/// installation puts them.
class LinuxBundleInformation final : public BundleInformation {
public:
    /// `programFolder` is where the executable is.
    explicit LinuxBundleInformation(QString programFolder);

    std::optional<QString> identifier() const override;
    std::optional<QString> value(const QString& key) const override;
    std::optional<QString> resourceFolder() const override;

private:
    const QString programFolder;
};

} // namespace tessaline

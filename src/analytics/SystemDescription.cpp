#include "analytics/SystemDescription.h"

#include <QOperatingSystemVersion>
#include <QSysInfo>
#include <QVersionNumber>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

SystemDescription SystemDescription::current() {
    const auto system = QOperatingSystemVersion::current();
    const QString description = QSysInfo::prettyProductName();
    if (system.type() == QOperatingSystemVersion::MacOS) {
        return {.name = u"macOS"_s,
                .description = description,
                .majorVersion = system.majorVersion(),
                .minorVersion = system.minorVersion(),
                .patchVersion = system.microVersion()};
    }
    // Numbers that a version does not have read as 0.
    const auto version = QVersionNumber::fromString(QSysInfo::productVersion());
    return {.name = u"Linux"_s,
            .description = description,
            .majorVersion = version.majorVersion(),
            .minorVersion = version.minorVersion(),
            .patchVersion = version.microVersion()};
}

QString SystemDescription::version() const {
    return u"%1.%2.%3"_s.arg(majorVersion).arg(minorVersion).arg(patchVersion);
}

} // namespace tessaline

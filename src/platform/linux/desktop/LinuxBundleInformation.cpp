#include "platform/linux/desktop/LinuxBundleInformation.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

LinuxBundleInformation::LinuxBundleInformation(QString folder) : programFolder(std::move(folder)) {}

std::optional<QString> LinuxBundleInformation::identifier() const {
    return u"app.tessaline.Tessaline"_s;
}

std::optional<QString> LinuxBundleInformation::value(const QString& key) const {
    if (key == u"CFBundleIdentifier") return identifier();
    if (key == u"CFBundleName") return u"Tessaline"_s;
    if (key == u"CFBundleShortVersionString" || key == u"CFBundleVersion")
        return u"" TESSALINE_VERSION ""_s;
    if (key == u"TelemetryDeckAppID") return u"" TESSALINE_TELEMETRY_APP_ID ""_s;
    return std::nullopt;
}

std::optional<QString> LinuxBundleInformation::resourceFolder() const {
    for (const auto& place : {u"resources"_s, u"../share/tessaline"_s}) {
        const QString folder = QDir::cleanPath(programFolder + u'/' + place);
        if (QFileInfo(folder).isDir()) return folder;
    }
    return std::nullopt;
}

} // namespace tessaline

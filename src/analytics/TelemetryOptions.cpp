#include "analytics/TelemetryOptions.h"

#include <QtGlobal>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QUrl TelemetryOptions::defaultBaseURL() {
    return QUrl(u"https://nom.telemetrydeck.com/v2/"_s);
}

TelemetryOptions TelemetryOptions::fromEnvironment() {
    TelemetryOptions options;
    // What cannot be understood reaches nobody; least of all the service that it was to replace.
    const QString address = qEnvironmentVariable("TESSALINE_TELEMETRY_URL");
    if (!address.isEmpty()) options.baseURL = QUrl(address, QUrl::StrictMode);
    const QString wish = qEnvironmentVariable("DO_NOT_TRACK");
    options.isAllowed = wish.isEmpty() || wish == u"0";
    return options;
}

} // namespace tessaline

#pragma once

#include <QByteArray>
#include <QStringView>

namespace tessaline {

/// Text as it stands in an HTML page, between tags or in a quoted attribute. What HTML does not
/// allow, control characters and lone surrogates, becomes U+FFFD.
QByteArray htmlText(QStringView text);

} // namespace tessaline

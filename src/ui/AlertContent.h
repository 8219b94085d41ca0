#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

namespace tessaline {

/// What an alert says and asks.
struct AlertContent {
    enum class Style { informational, warning };

    QString messageText;     ///< the title line
    QString informativeText; ///< what there is to say about it
    Style style = Style::informational;
    QIcon icon;                                ///< null: the style's own
    QStringList buttons{QStringLiteral("OK")}; ///< the first one is what Return presses
};

} // namespace tessaline

#pragma once

#include "platform/ScreenIdentity.h"

#include <QString>

class QScreen;

namespace tessaline {

/// The identity of a monitor on a connector such as "eDP-1" or "HDMI-A-2". The id is never 0 and
/// the same in every session; it differs for another monitor on the same connector and for the same
/// monitor on another connector. Any text may be empty. Panels on eDP, LVDS and DSI are built in.
ScreenIdentity connectorIdentity(const QString& connector, const QString& manufacturer,
                                 const QString& model, const QString& serialNumber);

/// The same for a screen of Qt's.
ScreenIdentity identifyByConnector(const QScreen& screen);

} // namespace tessaline

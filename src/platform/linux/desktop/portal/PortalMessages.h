#pragma once

#include "platform/linux/desktop/portal/ShortcutsPortal.h"

#include <QDBusArgument>
#include <QList>
#include <QVariantMap>

namespace tessaline {

/// A shortcut as it goes over the bus, either way.
struct PortalShortcutEntry {
    QString id;
    QVariantMap properties;
};

using PortalShortcutList = QList<PortalShortcutEntry>;

QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcutEntry& entry);
const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcutEntry& entry);

/// What the bus has to know of the above. Call it before they are used.
void registerPortalTypes();

/// Where a portal tells what came of a request with this token, made by the connection that the bus
/// knows under this name.
QString portalRequestPath(const QString& uniqueName, const QString& token);

/// What we ask for.
PortalShortcutList portalEntries(const std::vector<ShortcutsPortal::Shortcut>& shortcuts);

/// What a portal lists: a list of entries in a variant, as it comes from the bus. Empty where it is
/// something else.
std::vector<ShortcutsPortal::Bound> boundShortcuts(const QVariant& listed);

} // namespace tessaline

Q_DECLARE_METATYPE(tessaline::PortalShortcutEntry)

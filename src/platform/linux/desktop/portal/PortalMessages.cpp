#include "platform/linux/desktop/portal/PortalMessages.h"

#include <QDBusMetaType>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcutEntry& entry) {
    argument.beginStructure();
    argument << entry.id << entry.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcutEntry& entry) {
    argument.beginStructure();
    argument >> entry.id >> entry.properties;
    argument.endStructure();
    return argument;
}

void registerPortalTypes() {
    qDBusRegisterMetaType<PortalShortcutEntry>();
    qDBusRegisterMetaType<PortalShortcutList>();
}

QString portalRequestPath(const QString& uniqueName, const QString& token) {
    QString sender = uniqueName.mid(1); // without the colon
    sender.replace(u'.', u'_');
    return u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(sender, token);
}

PortalShortcutList portalEntries(const std::vector<ShortcutsPortal::Shortcut>& shortcuts) {
    PortalShortcutList entries;
    for (const auto& shortcut : shortcuts) {
        QVariantMap properties{{u"description"_s, shortcut.description}};
        if (!shortcut.preferredTrigger.isEmpty())
            properties.insert(u"preferred_trigger"_s, shortcut.preferredTrigger);
        entries.push_back({shortcut.id, properties});
    }
    return entries;
}

std::vector<ShortcutsPortal::Bound> boundShortcuts(const QVariant& listed) {
    std::vector<ShortcutsPortal::Bound> bound;
    const auto argument = listed.value<QDBusArgument>();
    if (argument.currentSignature() != "a(sa{sv})"_L1) return bound;
    for (const auto& entry : qdbus_cast<PortalShortcutList>(argument))
        bound.push_back({entry.id, entry.properties.value(u"trigger_description"_s).toString()});
    return bound;
}

} // namespace tessaline

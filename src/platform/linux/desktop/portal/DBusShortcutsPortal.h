#pragma once

#include "platform/linux/desktop/portal/ShortcutsPortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

namespace tessaline {

/// The portal on the session bus, by a connection of its own. Every question is answered once, by
/// the portal or by what became of it; the next question makes the one before void.
class DBusShortcutsPortal : public QObject, public ShortcutsPortal {
    Q_OBJECT

public:
    DBusShortcutsPortal();
    ~DBusShortcutsPortal() override;
    DBusShortcutsPortal(const DBusShortcutsPortal&) = delete;
    DBusShortcutsPortal& operator=(const DBusShortcutsPortal&) = delete;

    void listen(Events events) override;
    void open(Answered answered) override;
    void bind(const std::vector<Shortcut>& shortcuts, Answered answered) override;

private:
    Q_SLOT void responded(uint code, const QVariantMap& results, const QDBusMessage& message);
    Q_SLOT void activated(const QDBusMessage& message);
    Q_SLOT void shortcutsChanged(const QDBusMessage& message);
    Q_SLOT void sessionClosed(const QDBusMessage& message);

    /// What a portal says of a request when it is done with it.
    using Response = std::function<void(uint code, const QVariantMap& results)>;

    void tellWhoWeAre();
    void created(const QVariantMap& results);
    void list();
    QVariantMap request(Response response);
    void call(const QString& method, const QVariantList& arguments);
    void answer(Answer::Outcome outcome, const QVariantMap& results = {});
    void ownerChanged(const QString& before, const QString& now);
    void closeSession();
    bool isOurs(const QDBusMessage& message) const;

    QDBusConnection bus;
    QDBusServiceWatcher watcher;
    Events events;
    Answered pending;
    QString requestPath;
    Response awaited;
    QString session;
    int requests = 0;
};

} // namespace tessaline

#include "platform/linux/desktop/portal/DBusShortcutsPortal.h"

#include "platform/linux/desktop/portal/PortalMessages.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QString shortcutsConnection() {
    return u"tessaline-shortcuts"_s;
}

QString service() {
    return u"org.freedesktop.portal.Desktop"_s;
}

QString portalPath() {
    return u"/org/freedesktop/portal/desktop"_s;
}

QString interface() {
    return u"org.freedesktop.portal.GlobalShortcuts"_s;
}

QString sessionInterface() {
    return u"org.freedesktop.portal.Session"_s;
}

} // namespace

DBusShortcutsPortal::DBusShortcutsPortal()
    : bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, shortcutsConnection()))
    , watcher(service(), bus) {
    registerPortalTypes();
    connect(&watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString& before, const QString& now) {
                ownerChanged(before, now);
            });
    // Signals of all paths: a subscription takes a trip to the bus, which questions do not wait
    // for.
    bus.connect({}, {}, u"org.freedesktop.portal.Request"_s, u"Response"_s, this,
                SLOT(responded(uint, QVariantMap, QDBusMessage)));
    bus.connect({}, portalPath(), interface(), u"Activated"_s, this, SLOT(activated(QDBusMessage)));
    bus.connect({}, portalPath(), interface(), u"ShortcutsChanged"_s, this,
                SLOT(shortcutsChanged(QDBusMessage)));
    bus.connect({}, {}, sessionInterface(), u"Closed"_s, this, SLOT(sessionClosed(QDBusMessage)));
}

DBusShortcutsPortal::~DBusShortcutsPortal() {
    QDBusConnection::disconnectFromBus(shortcutsConnection());
}

void DBusShortcutsPortal::listen(Events listener) {
    events = std::move(listener);
}

void DBusShortcutsPortal::open(Answered answered) {
    closeSession();
    pending = std::move(answered);
    tellWhoWeAre();
    QVariantMap options = request([this](uint code, const QVariantMap& results) {
        code == 0 ? created(results) : answer(Answer::Outcome::refused);
    });
    options.insert(u"session_handle_token"_s, u"tessaline%1"_s.arg(requests));
    call(u"CreateSession"_s, {options});
}

/// Newer portals want to know it, older ones guess; so what comes of it does not matter.
void DBusShortcutsPortal::tellWhoWeAre() {
    auto message = QDBusMessage::createMethodCall(
        service(), portalPath(), u"org.freedesktop.host.portal.Registry"_s, u"Register"_s);
    message << u"app.tessaline.Tessaline"_s << QVariantMap();
    bus.asyncCall(message);
}

void DBusShortcutsPortal::created(const QVariantMap& results) {
    session = results.value(u"session_handle"_s).toString();
    list();
}

void DBusShortcutsPortal::list() {
    const QVariantMap options = request([this](uint code, const QVariantMap& results) {
        answer(code == 0 ? Answer::Outcome::done : Answer::Outcome::refused, results);
    });
    call(u"ListShortcuts"_s, {QVariant::fromValue(QDBusObjectPath(session)), options});
}

void DBusShortcutsPortal::bind(const std::vector<Shortcut>& shortcuts, Answered answered) {
    pending = std::move(answered);
    const QVariantMap options = request([this](uint code, const QVariantMap& results) {
        answer(code == 0 ? Answer::Outcome::done : Answer::Outcome::refused, results);
    });
    const QString parentWindow;
    call(u"BindShortcuts"_s,
         {QVariant::fromValue(QDBusObjectPath(session)),
          QVariant::fromValue(portalEntries(shortcuts)), parentWindow, options});
}

/// The options of a new request, whose response is the one that counts from now on.
QVariantMap DBusShortcutsPortal::request(Response response) {
    const QString token = u"tessaline%1"_s.arg(++requests);
    requestPath = portalRequestPath(bus.baseService(), token);
    awaited = std::move(response);
    return {{u"handle_token"_s, token}};
}

void DBusShortcutsPortal::call(const QString& method, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(service(), portalPath(), interface(), method);
    message.setArguments(arguments);
    auto* reply = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this,
            [this, path = requestPath](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                if (finished->isError() && path == requestPath)
                    answer(Answer::Outcome::unavailable);
            });
}

void DBusShortcutsPortal::responded(uint code, const QVariantMap& results,
                                    const QDBusMessage& message) {
    if (message.path() != requestPath) return;
    requestPath.clear();
    if (const auto response = std::exchange(awaited, nullptr)) response(code, results);
}

void DBusShortcutsPortal::answer(Answer::Outcome outcome, const QVariantMap& results) {
    requestPath.clear();
    awaited = nullptr;
    if (const auto answered = std::exchange(pending, nullptr))
        answered({outcome, boundShortcuts(results.value(u"shortcuts"_s))});
}

void DBusShortcutsPortal::activated(const QDBusMessage& message) {
    if (isOurs(message) && events.pressed) events.pressed(message.arguments().value(1).toString());
}

void DBusShortcutsPortal::shortcutsChanged(const QDBusMessage& message) {
    if (isOurs(message) && events.changed)
        events.changed(boundShortcuts(message.arguments().value(1)));
}

void DBusShortcutsPortal::sessionClosed(const QDBusMessage& message) {
    if (session.isEmpty() || message.path() != session) return;
    session.clear();
    answer(Answer::Outcome::refused);
    if (events.closed) events.closed();
}

/// A first owner is not news: our own question may have started it.
void DBusShortcutsPortal::ownerChanged(const QString& before, const QString& now) {
    if (!before.isEmpty()) {
        session.clear();
        answer(Answer::Outcome::unavailable);
        if (events.gone) events.gone();
    }
    const bool wasAnswered = !pending;
    if (!now.isEmpty() && wasAnswered && events.came) events.came();
}

void DBusShortcutsPortal::closeSession() {
    if (session.isEmpty()) return;
    bus.asyncCall(QDBusMessage::createMethodCall(service(), std::exchange(session, {}),
                                                 sessionInterface(), u"Close"_s));
}

/// Signals come from whoever sends them: the first argument names the session.
bool DBusShortcutsPortal::isOurs(const QDBusMessage& message) const {
    const auto arguments = message.arguments();
    return !session.isEmpty() && !arguments.isEmpty() &&
           arguments.front().value<QDBusObjectPath>().path() == session;
}

} // namespace tessaline

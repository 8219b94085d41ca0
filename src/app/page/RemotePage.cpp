#include "app/page/RemotePage.h"

#include "app/AppDelegate.h"
#include "app/RemoteControl.h"
#include "platform/Platform.h"
#include "platform/TimerMaker.h"
#include "remote/page/PageCommands.h"

#include <QFile>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Pages and the prompter are to agree within a tenth of a second.
constexpr TimerMaker::Interval pageLookInterval{0.05};
/// By which a page knows that it is still connected.
constexpr std::chrono::seconds longestPause{2};
/// Networks come and go.
constexpr TimerMaker::Interval retryInterval{10.0};

std::optional<WebServer::Place> placeOf(const ReadingOptions& options) {
    if (!options.remotePage) return {};
    return WebServer::Place{options.remoteAddress.value_or(u"127.0.0.1"_s),
                            quint16(options.remotePort)};
}

QByteArray pageFile(const QByteArray& name) {
    QFile file(u":/remote/"_s + QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

RemotePage::RemotePage(AppDelegate& owner, const Platform& platform, Clocks theClocks)
    : delegate(owner)
    , server(*platform.web)
    , timers(*platform.timers)
    , clocks(std::move(theClocks))
    , observation(owner.reading().observe([this](const ReadingOptions&) { optionsChanged(); })) {
    optionsChanged();
}

RemotePage::~RemotePage() = default;

void RemotePage::optionsChanged() {
    auto place = placeOf(delegate.reading().values());
    if (place == wanted) return;
    close();
    wanted = std::move(place);
    if (wanted) {
        open();
        retrying = timers.every(retryInterval, [this] {
            if (!service) open();
        });
    }
    announce();
}

void RemotePage::open() {
    const PageOrigin origin{wanted->address.toLatin1(), wanted->port};
    whyNot.clear();
    feed = std::make_unique<PageFeed>(delegate);
    gate = std::make_unique<PageGate>(origin, content(), systemRandomBytes);
    service = server.serve(*wanted, *this, &whyNot);
    if (!service) gate.reset();
    announce();
}

void RemotePage::close() {
    retrying.reset();
    looking.reset();
    service.reset();
    gate.reset();
    feed.reset();
    crowd = {};
    whyNot.clear();
}

PageGate::Content RemotePage::content() const {
    return {pageFile, [this](const QByteArray& name) { return feed->script().part(name); },
            [this] { return crowd.hasRoom(); }};
}

void RemotePage::announce() const {
    if (onChange) onChange();
}

QString RemotePage::address() const {
    if (!wanted) return {};
    const PageOrigin origin{wanted->address.toLatin1(), wanted->port};
    return u"http://%1/"_s.arg(QString::fromLatin1(origin.authority()));
}

QString RemotePage::code() const {
    return gate ? address() + u'#' + QString::fromLatin1(gate->secret()) : QString();
}

void RemotePage::tell(PrompterStatus& status) const {
    status.remote = !wanted ? u"off"_s : service ? u"on"_s : u"failed"_s;
    status.remoteAddress = address();
    status.remoteProblem = whyNot;
    status.remotePages = pages();
}

void RemotePage::disconnectAll() {
    if (!gate) return;
    gate->renew();
    for (const WebServer::Client client : crowd.all())
        service->drop(client);
    announce();
}

QString RemotePage::chooseAddress(const ControlRequest& request) {
    const QStringList addresses = server.networkAddresses();
    if (addresses.isEmpty()) return u"this machine is in no network"_s;
    const QString chosen = request.detail.isEmpty() ? addresses.first() : request.detail;
    if (!addresses.contains(chosen)) {
        return u"'%1' is not an address of this machine, which has %2"_s.arg(
            chosen, addresses.join(", "_L1));
    }
    delegate.reading().change([&](ReadingOptions& options) { options.remoteAddress = chosen; });
    return {};
}

RemoteAnswer RemotePage::carryOut(const ControlRequest& request) {
    const QString& deed = request.argument;
    if (deed == "devices"_L1) {
        if (const QString refusal = chooseAddress(request); !refusal.isEmpty())
            return Refusal{refusal};
    } else if (deed == "renew"_L1) {
        disconnectAll();
    } else if (deed != "status"_L1 && deed != "code"_L1) {
        delegate.reading().change([&](ReadingOptions& options) {
            if (deed == "local"_L1) {
                options.remoteAddress.reset();
            } else if (deed == "port"_L1) {
                if (!request.detail.isEmpty()) options.remotePort = request.detail.toDouble();
            } else {
                options.remotePage = deed == "on"_L1;
            }
        });
    }
    PrompterStatus status = delegate.status();
    if (deed == "code"_L1) {
        if (!gate) return Refusal{u"the remote page is off"_s};
        status.remoteAddress = code();
    }
    return status;
}

WebAnswer RemotePage::answer(const HttpRequest& request, const QByteArray& from) {
    return gate->answer(request, from, clocks.steady());
}

void RemotePage::joined(WebServer::Client client) {
    // Several may have been let in before the first of them joined.
    if (!crowd.hasRoom()) return service->drop(client);
    crowd.add(client, clocks.steady());
    if (!looking) looking = timers.every(pageLookInterval, [this] { look(); });
    service->tell(client, QString::fromUtf8(messageOf(feed->state())));
    announce();
}

void RemotePage::told(WebServer::Client client, const QString& message) {
    const auto request = pageCommand(message);
    if (!request || !crowd.mayTell(client, clocks.steady())) return service->drop(client);
    RemoteControl(delegate).carryOut(*request, [](const RemoteAnswer&) {});
}

void RemotePage::left(WebServer::Client client) {
    const std::size_t before = crowd.size();
    crowd.remove(client);
    if (crowd.size() == before) return;
    if (crowd.size() == 0) looking.reset();
    announce();
}

void RemotePage::look() {
    const PageState state = feed->state();
    if (state == shown && clocks.steady() - lastTold < longestPause) return;
    shown = state;
    lastTold = clocks.steady();
    const QString message = QString::fromUtf8(messageOf(state));
    for (const WebServer::Client client : crowd.all())
        service->tell(client, message);
}

} // namespace tessaline

#pragma once

#include "app/page/PageFeed.h"
#include "app/remote/RemoteRequest.h"
#include "platform/WebServer.h"
#include "reading/Clocks.h"
#include "remote/page/PageCrowd.h"
#include "remote/page/PageGate.h"
#include "settings/ReadingSettings.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace tessaline {

class AppDelegate;
class RepeatingTimer;
class TimerMaker;
struct Platform;

/// Serves the page by which phones and tablets drive the prompter, while the user wants that. While
/// they do not, nothing of it is there.
class RemotePage final : private WebServer::Site {
public:
    /// Borrows all; the delegate owns it and has its windows.
    RemotePage(AppDelegate& delegate, const Platform& platform, Clocks clocks = {});
    ~RemotePage() override;

    /// What `ctl remote` asks for. The answer to "code" has the secret in its address.
    RemoteAnswer carryOut(const ControlRequest& request);

    /// The page's address with the secret; empty while it is not served.
    QString code() const;

    /// Why it is not served though it is wanted, in one line; else empty.
    QString problem() const { return whyNot; }

    int pages() const { return int(crowd.size()); } ///< that are connected

    /// Ends all sessions; from now on another secret lets phones in.
    void disconnectAll();

    void tell(PrompterStatus& status) const;

    /// Called when it is served or no longer, has another secret, or another number of pages.
    std::function<void()> onChange;

private:
    WebAnswer answer(const HttpRequest& request, const QByteArray& address) override;
    void joined(WebServer::Client client) override;
    void told(WebServer::Client client, const QString& message) override;
    void left(WebServer::Client client) override;

    void optionsChanged();
    void open();
    void close();
    PageGate::Content content() const;
    QString chooseAddress(const ControlRequest& request);
    void look();
    QString address() const;
    void announce() const;

    AppDelegate& delegate;
    WebServer& server;
    TimerMaker& timers;
    const Clocks clocks;
    std::optional<WebServer::Place> wanted;
    QString whyNot;
    std::unique_ptr<PageFeed> feed;
    std::unique_ptr<PageGate> gate;
    std::unique_ptr<WebServer::Service> service;
    PageCrowd crowd;
    PageState shown;
    Clocks::TimePoint lastTold;
    std::unique_ptr<RepeatingTimer> looking;  ///< while pages are connected
    std::unique_ptr<RepeatingTimer> retrying; ///< while it is wanted
    ReadingSettings::Observation observation;
};

} // namespace tessaline

#include "analytics/TelemetryDeckClient.h"

#include "analytics/AnalyticsLog.h"
#include "analytics/SharedInstance.h"
#include "analytics/TDSignal.h"
#include "analytics/UsageRecorder.h"
#include "platform/BundleInformation.h"
#include "platform/Platform.h"
#include "platform/TimerMaker.h"
#include "platform/UserDefaults.h"

#include <QCryptographicHash>
#include <QEventLoop>
#include <QTimer>
#include <QUuid>

#include <iterator>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr TimerMaker::Interval sendInterval{10.0};

QString newIdentifier() {
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QString sha256(const QString& text) {
    const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex());
}

} // namespace

TelemetryDeckClient& TelemetryDeckClient::shared() {
    return SharedInstance<TelemetryDeckClient>::get();
}

TelemetryDeckClient::TelemetryDeckClient(Setup given, TelemetryOptions clientOptions)
    : setup(std::move(given))
    , options(std::move(clientOptions))
    , sessionID(newIdentifier())
    , everySignalsPayload(defaultPayload()) {
    if (options.isAllowed)
        flushTimer = setup.platform.timers->every(sendInterval, [this] { flush(); });
}

TelemetryDeckClient::~TelemetryDeckClient() = default;

void TelemetryDeckClient::setAppID(const QString& id) {
    const std::scoped_lock guard(bufferLock);
    appID = id;
}

void TelemetryDeckClient::signal(const QString& name, const Parameters& parameters) {
    if (!options.isAllowed) return;
    TDSignal signal{.receivedAt = setup.now(),
                    .clientUser = clientUser(),
                    .sessionID = sessionID,
                    .type = name,
                    .payload = everySignalsPayload,
                    .isTestMode = booleanText(options.testMode)};
    signal.payload.insert(parameters);
    {
        const std::scoped_lock guard(bufferLock);
        signal.appID = appID;
    }
    auto encoded = encode(signal);
    if (!encoded) return;
    const std::scoped_lock guard(bufferLock);
    buffer.push_back(std::move(*encoded));
}

void TelemetryDeckClient::flush() {
    if (underWay.empty()) {
        sendCollected();
    } else {
        flushAgain = true;
    }
}

void TelemetryDeckClient::appWillTerminate() {
    sendCollected();
}

bool TelemetryDeckClient::waitForRequests(std::chrono::milliseconds longest) {
    QEventLoop loop;
    bool isOver = false;
    QTimer timer;
    timer.setSingleShot(true);
    timer.callOnTimeout([&isOver] { isOver = true; });
    timer.start(longest);
    while (!underWay.empty() && !isOver)
        loop.processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::ExcludeUserInputEvents);
    return underWay.empty();
}

TelemetryDeckClient::Parameters TelemetryDeckClient::defaultPayload() const {
    const auto bundleValue = [this](const QString& key) {
        return setup.platform.bundle->value(key).value_or(u"unknown"_s);
    };
    return {
        {u"TelemetryDeck.AppInfo.version"_s, bundleValue(u"CFBundleShortVersionString"_s)},
        {u"TelemetryDeck.AppInfo.buildNumber"_s, bundleValue(u"CFBundleVersion"_s)},
        {u"TelemetryDeck.Device.operatingSystem"_s, setup.system.name},
        {u"TelemetryDeck.Device.platform"_s, setup.system.name},
        {u"TelemetryDeck.Device.systemVersion"_s, setup.system.version()},
        {u"TelemetryDeck.Device.systemMajorVersion"_s, QString::number(setup.system.majorVersion)},
        {u"TelemetryDeck.RunContext.isDebug"_s, booleanText(options.testMode)},
        {u"TelemetryDeck.RunContext.isTestFlight"_s, booleanText(false)},
        {u"TelemetryDeck.RunContext.isAppStore"_s, booleanText(false)},
        {u"TelemetryDeck.SDK.name"_s, u"TessalineCustomClient"_s},
        {u"TelemetryDeck.SDK.version"_s, u"1.0.0"_s},
    };
}

QString TelemetryDeckClient::clientUser() {
    std::call_once(identified, [this] { hashedUser = sha256(userIdentifier()); });
    return hashedUser;
}

QString TelemetryDeckClient::userIdentifier() {
    const QString identifier =
        setup.platform.bundle->identifier().value_or(u"app.tessaline.Tessaline"_s);
    const QString key = identifier + u".telemetry.userId"_s;
    QString known = setup.platform.defaults->string(key).value_or(QString());
    if (!known.isEmpty()) return known;
    QString created = newIdentifier();
    setup.platform.defaults->setString(key, created);
    return created;
}

void TelemetryDeckClient::sendCollected() {
    Batch batch;
    {
        const std::scoped_lock guard(bufferLock);
        batch.swap(buffer);
    }
    if (!batch.empty()) send(std::move(batch));
}

void TelemetryDeckClient::send(Batch batch) {
    QByteArray body = "[";
    for (const QByteArray& encoded : batch)
        body += encoded + ',';
    body.back() = ']';
    const auto sending = underWay.insert(underWay.end(), Sending{std::move(batch), {}, {}});
    sending->limit = setup.platform.timers->every(options.timeout, [this, sending] {
        finish(sending, {.status = 0, .problem = u"The server did not answer in time"_s});
    });
    sending->post = setup.platform.http->post(
        options.baseURL, body,
        [this, sending](const HttpPoster::Answer& answer) { finish(sending, answer); });
}

void TelemetryDeckClient::finish(Sendings::iterator sending, const HttpPoster::Answer& answer) {
    Sending over = std::move(*sending);
    underWay.erase(sending);
    // With a status the service has judged the batch, whatever becomes of the rest of its answer:
    // sending the batch again would count it twice.
    if (answer.status == 0) {
        putBack(std::move(over.batch));
        qCWarning(telemetryLog, "[TelemetryDeck] Send failed: %s", qUtf8Printable(answer.problem));
    } else if (answer.status < 200 || answer.status > 299) {
        qCWarning(telemetryLog, "[TelemetryDeck] Server returned %d", answer.status);
    }
    if (underWay.empty() && std::exchange(flushAgain, false)) sendCollected();
}

void TelemetryDeckClient::putBack(Batch unsent) {
    const std::scoped_lock guard(bufferLock);
    unsent.insert(unsent.end(), std::make_move_iterator(buffer.begin()),
                  std::make_move_iterator(buffer.end()));
    buffer = std::move(unsent);
}

} // namespace tessaline

#include "remote/page/PageGate.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessaline {

namespace {

constexpr int ok = 200;
constexpr int noContent = 204;
constexpr int forbidden = 403;
constexpr int notFound = 404;
constexpr int wrongMethod = 405;
constexpr int misdirected = 421;
constexpr int tooManyRequests = 429;
constexpr int unavailable = 503;

enum class Reach : std::uint8_t { everybody, sessions };

/// A file of the page, under its own name.
struct PageFile {
    QByteArrayView path;
    Reach reach;
};

constexpr std::array pageFiles{
    PageFile{"/style.css", Reach::everybody}, PageFile{"/pair.js", Reach::everybody},
    PageFile{"/page.js", Reach::sessions},    PageFile{"/connection.js", Reach::sessions},
    PageFile{"/script.js", Reach::sessions},  PageFile{"/throttle.js", Reach::sessions},
};

QByteArray contentType(const QByteArray& name) {
    if (name.endsWith(".css")) return "text/css; charset=utf-8";
    if (name.endsWith(".js")) return "text/javascript; charset=utf-8";
    return "text/html; charset=utf-8";
}

/// Nothing but what is here may be loaded, shown around the page, or spoken with.
QByteArray contentSecurityPolicy(const QByteArray& host) {
    // Not every browser takes 'self' for the web socket of the same place.
    return "default-src 'none'; script-src 'self'; style-src 'self'; connect-src 'self' ws://" +
           host +
           "; base-uri 'none'; form-action 'none'; frame-ancestors 'none'; "
           "require-trusted-types-for 'script'";
}

/// Whether another page, which may be one of another program on the same machine, has this
/// requested. Browsers that do not say so are judged by their origin where it matters.
bool isForOthers(const HttpRequest& request) {
    const QByteArray site = request.header("sec-fetch-site");
    return !(site.isEmpty() || site == "same-origin" || site == "none");
}

} // namespace

PageGate::PageGate(const PageOrigin& place, Content behind, const RandomBytes& source)
    : origin(place)
    , content(std::move(behind))
    , random(source)
    , currentSecret(newSecret(source))
    , sessions(source) {}

void PageGate::renew() {
    sessions.closeAll();
    currentSecret = newSecret(random);
}

QByteArray PageGate::cookieName() const {
    return "tessaline-" + QByteArray::number(origin.port);
}

bool PageGate::hasSession(const HttpRequest& request) const {
    return sessions.isOpen(request.cookie(cookieName()));
}

WebAnswer PageGate::answer(const HttpRequest& request, const QByteArray& address,
                           PairingLimit::Time now) {
    const QByteArray host = request.header("host");
    if (!origin.isHost(host)) return HttpReply{.status = misdirected};
    const bool isOwnPage = request.header("origin") == "http://" + host;
    if (request.method == HttpRequest::Method::post) {
        if (!isOwnPage || isForOthers(request)) return reply(request, forbidden);
        if (request.path != "/pair") return reply(request, wrongMethod);
        return pair(request, address, now);
    }
    if (!request.wantsWebSocket()) return get(request);
    if (!isOwnPage || !hasSession(request)) return reply(request, forbidden);
    if (request.path != "/socket") return reply(request, notFound);
    if (!content.hasRoom()) return reply(request, unavailable);
    return WebSocketPass{};
}

HttpReply PageGate::reply(const HttpRequest& request, int status) const {
    return {.status = status,
            .headers = {{"Content-Security-Policy", contentSecurityPolicy(request.header("host"))},
                        {"X-Content-Type-Options", "nosniff"},
                        {"X-Frame-Options", "DENY"},
                        {"Referrer-Policy", "no-referrer"},
                        {"Cross-Origin-Opener-Policy", "same-origin"},
                        {"Cross-Origin-Resource-Policy", "same-origin"},
                        {"Cache-Control", "no-store"}}};
}

HttpReply PageGate::fileReply(const HttpRequest& request, const QByteArray& name) const {
    HttpReply file = reply(request, ok);
    file.headers.emplace_back("Content-Type", contentType(name));
    file.body = content.file(name);
    return file;
}

HttpReply PageGate::pair(const HttpRequest& request, const QByteArray& address,
                         PairingLimit::Time now) {
    if (!limit.mayTry(address, now)) return reply(request, tooManyRequests);
    if (!isSameSecret(request.body, currentSecret)) {
        limit.failed(address, now);
        return reply(request, forbidden);
    }
    HttpReply paired = reply(request, noContent);
    paired.headers.emplace_back("Set-Cookie", cookieName() + '=' + sessions.open() +
                                                  "; Path=/; HttpOnly; SameSite=Strict");
    return paired;
}

HttpReply PageGate::get(const HttpRequest& request) const {
    const bool isPaired = hasSession(request);
    // Where a link leads: others may have it followed, and see nothing of what comes.
    if (request.path == "/") return fileReply(request, isPaired ? "index.html" : "pair.html");
    if (isForOthers(request)) return reply(request, forbidden);
    const auto* file =
        std::find_if(pageFiles.begin(), pageFiles.end(),
                     [&request](const PageFile& each) { return each.path == request.path; });
    if (file != pageFiles.end() && (isPaired || file->reach == Reach::everybody))
        return fileReply(request, request.path.sliced(1));
    if (!isPaired) return reply(request, forbidden);
    constexpr QByteArrayView scriptPath("/script/");
    if (!request.path.startsWith(scriptPath)) return reply(request, notFound);
    auto part = content.scriptPart(request.path.sliced(scriptPath.size()));
    if (!part) return reply(request, notFound);
    HttpReply found = reply(request, ok);
    found.headers.emplace_back("Content-Type", "application/json");
    found.body = std::move(*part);
    return found;
}

} // namespace tessaline

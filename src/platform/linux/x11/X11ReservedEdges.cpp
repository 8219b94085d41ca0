#include "platform/linux/x11/X11ReservedEdges.h"

#include "platform/linux/x11/XcbAtom.h"
#include "platform/linux/x11/XcbReply.h"
#include "platform/linux/x11/XcbWindows.h"

#include <QScreen>

#include <algorithm>
#include <chrono>
#include <unordered_set>
#include <utility>

namespace tessaline {

namespace {

using namespace std::chrono_literals;

// Windows come and go in bundles of events, which one look answers.
constexpr auto pause = 50ms;
constexpr std::uint32_t maxStrutNumbers = 12;

/// Nothing to check: a window that is gone leaves an error among the events.
void listen(xcb_connection_t* connection, xcb_window_t window, std::uint32_t events) {
    xcb_change_window_attributes(connection, window, XCB_CW_EVENT_MASK, &events);
}

/// Qt keeps a screen's place in the server's pixels, and divides its size.
QRect pixelsOf(const QScreen& screen) {
    const QSizeF size = QSizeF(screen.size()) * screen.devicePixelRatio();
    return {screen.geometry().topLeft(), size.toSize()};
}

} // namespace

std::unique_ptr<X11ReservedEdges> X11ReservedEdges::open() {
    Connection opened(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(opened.get()) != 0) return nullptr;
    return std::unique_ptr<X11ReservedEdges>(new X11ReservedEdges(std::move(opened)));
}

X11ReservedEdges::X11ReservedEdges(Connection openConnection)
    : connection(std::move(openConnection))
    , root(xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root)
    , clientList(xcbAtom(connection.get(), "_NET_CLIENT_LIST"))
    , struts{xcbAtom(connection.get(), "_NET_WM_STRUT_PARTIAL"),
             xcbAtom(connection.get(), "_NET_WM_STRUT")}
    , notifier(xcb_get_file_descriptor(connection.get()), QSocketNotifier::Read) {
    lookTimer.setSingleShot(true);
    lookTimer.setInterval(pause);
    QObject::connect(&lookTimer, &QTimer::timeout, &lookTimer, [this] { look(); });
    QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [this] { readEvents(); });
    listen(connection.get(), root,
           XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY |
               XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    look();
}

QMarginsF X11ReservedEdges::of(const QScreen& screen) const {
    return QMarginsF(reservedBy(strips, pixelsOf(screen))) / screen.devicePixelRatio();
}

void X11ReservedEdges::readEvents() {
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection.get())})
        if (tellsOfAChange(*event) && !lookTimer.isActive()) lookTimer.start();
    if (xcb_connection_has_error(connection.get()) != 0) notifier.setEnabled(false);
}

bool X11ReservedEdges::tellsOfAChange(const xcb_generic_event_t& event) const {
    switch (event.response_type & 0x7f) {
    case XCB_MAP_NOTIFY:
    case XCB_UNMAP_NOTIFY:
        return true;
    case XCB_CONFIGURE_NOTIFY:
        return reinterpret_cast<const xcb_configure_notify_event_t&>(event).window == root;
    case XCB_PROPERTY_NOTIFY: {
        const auto atom = reinterpret_cast<const xcb_property_notify_event_t&>(event).atom;
        return atom == clientList || std::ranges::count(struts, atom) > 0;
    }
    default:
        return false;
    }
}

void X11ReservedEdges::look() {
    auto found = stripsOf(candidates());
    // The replies may have brought events along, of which the descriptor says nothing more.
    QMetaObject::invokeMethod(
        &notifier, [this] { readEvents(); }, Qt::QueuedConnection);
    if (found == std::exchange(strips, found)) return;
    if (onChange) onChange();
}

/// What the window manager manages, and what it may leave alone: docks are not in every list.
/// Those are on the root window, or in a frame there, beside nothing that is in the list.
std::vector<xcb_window_t> X11ReservedEdges::candidates() const {
    const auto listed = windowsListedIn(connection.get(), root, clientList);
    const std::unordered_set<xcb_window_t> managed(listed.begin(), listed.end());
    const auto isManaged = [&](xcb_window_t window) { return managed.contains(window); };

    auto windows = listed;
    const auto onRoot = childrenOf(connection.get(), {{root}}).front();
    const auto inFrames = childrenOf(connection.get(), onRoot);
    for (std::size_t i = 0; i < onRoot.size(); ++i) {
        if (isManaged(onRoot[i]) || std::ranges::any_of(inFrames[i], isManaged)) continue;
        windows.push_back(onRoot[i]);
        windows.insert(windows.end(), inFrames[i].begin(), inFrames[i].end());
    }
    return windows;
}

/// Listens before it looks, so that no change is missed. All requests go out at once.
std::vector<PanelStrip> X11ReservedEdges::stripsOf(const std::vector<xcb_window_t>& windows) const {
    std::vector<std::array<xcb_get_property_cookie_t, 2>> cookies;
    cookies.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        listen(connection.get(), window, XCB_EVENT_MASK_PROPERTY_CHANGE);
        const auto ask = [this, window](xcb_atom_t strut) {
            return xcb_get_property(connection.get(), 0, window, strut, XCB_ATOM_CARDINAL, 0,
                                    maxStrutNumbers);
        };
        cookies.push_back({ask(struts[0]), ask(struts[1])});
    }

    const QSize desktop = desktopSize();
    std::vector<PanelStrip> found;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const auto partial = numbersIn(connection.get(), cookies[i][0]);
        const auto simple = numbersIn(connection.get(), cookies[i][1]);
        const auto wanted = panelStripsFrom(partial.empty() ? simple : partial, desktop);
        if (!wanted.empty() && isSeen(windows[i]))
            found.insert(found.end(), wanted.begin(), wanted.end());
    }
    return found;
}

bool X11ReservedEdges::isSeen(xcb_window_t window) const {
    listen(connection.get(), window,
           XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    const XcbReply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        connection.get(), xcb_get_window_attributes(connection.get(), window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

/// As it is now: what the server said at the start does not follow its monitors.
QSize X11ReservedEdges::desktopSize() const {
    const XcbReply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(
        connection.get(), xcb_get_geometry(connection.get(), root), nullptr));
    return geometry ? QSize(geometry->width, geometry->height) : QSize();
}

} // namespace tessaline

#include "platform/linux/x11/XWayland.h"

#include "platform/linux/x11/XcbReply.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <string_view>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Servers since 23.1 say what they are by an extension of this name, which does nothing else.
bool hasExtension(xcb_connection_t* connection) {
    constexpr std::string_view name = "XWAYLAND";
    const auto cookie = xcb_query_extension(connection, std::uint16_t(name.size()), name.data());
    const XcbReply<xcb_query_extension_reply_t> reply(
        xcb_query_extension_reply(connection, cookie, nullptr));
    return reply && reply->present;
}

} // namespace

bool isXWayland(xcb_connection_t* connection) {
    const auto screens = QGuiApplication::screens();
    return hasExtension(connection) || std::ranges::any_of(screens, [](const QScreen* screen) {
               return isXWaylandOutput(screen->name());
           });
}

bool isXWaylandOutput(const QString& name) {
    constexpr auto prefix = "XWAYLAND"_L1;
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    return name.startsWith(prefix) && name.size() > prefix.size() &&
           std::ranges::all_of(QStringView(name).mid(prefix.size()), isDigit);
}

} // namespace tessaline

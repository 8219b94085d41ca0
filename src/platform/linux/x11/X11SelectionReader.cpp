#include "platform/linux/x11/X11SelectionReader.h"

#include "platform/Pasteboard.h"
#include "platform/linux/x11/XcbAtom.h"
#include "platform/linux/x11/XcbReply.h"

#include <QStringDecoder>

#include <poll.h>

#include <algorithm>
#include <cstdlib>
#include <span>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::uint32_t wordsPerReply = 1U << 18U;
constexpr qsizetype mostBytes = qsizetype{1} << 30;
struct TextTarget {
    const char* name;
    bool isUtf8;
};

/// In the order of preference. Some programs offer one of them only.
constexpr std::array<TextTarget, 5> textTargets{{{"UTF8_STRING", true},
                                                 {"text/plain;charset=utf-8", true},
                                                 {"text/plain;charset=UTF-8", true},
                                                 {"text/plain", true},
                                                 {"STRING", false}}};

QString decoded(const QByteArray& bytes, bool isUtf8) {
    if (!isUtf8) return QString::fromLatin1(bytes);
    // A byte-order mark is part of the text.
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder(bytes);
}

} // namespace

X11SelectionReader::X11SelectionReader() : connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection.get()) == 0) createWindow();
}

void X11SelectionReader::createWindow() {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
    window = xcb_generate_id(connection.get());
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.get(), 0, window, root, -2, -2, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
    clipboard = atom("CLIPBOARD");
    incremental = atom("INCR");
    transfer = atom("TESSALINE_CLIPBOARD");
}

std::optional<QString> X11SelectionReader::readText(QString* problem) {
    const QString silence = u"the program that owns the clipboard does not answer"_s;
    *problem = Pasteboard::noTextProblem();
    Property offer;
    const Outcome asked = convertTo(atom("TARGETS"), &offer);
    if (asked == Outcome::silent) *problem = silence;
    if (asked == Outcome::silent) return std::nullopt;
    // Some owners do not tell what they offer.
    const auto targets = asked == Outcome::converted ? std::optional(offer) : std::nullopt;

    for (const TextTarget& target : textTargets) {
        const xcb_atom_t wanted = atom(target.name);
        if (!isOffered(wanted, targets)) continue;
        Property text;
        const Outcome outcome = convertTo(wanted, &text);
        if (outcome == Outcome::refused) continue;
        if (outcome == Outcome::silent) *problem = silence;
        if (outcome == Outcome::silent || text.bytes.isEmpty()) return std::nullopt;
        problem->clear();
        return decoded(text.bytes, target.isUtf8);
    }
    return std::nullopt;
}

bool X11SelectionReader::isOffered(xcb_atom_t target,
                                   const std::optional<Property>& targets) const {
    if (!targets) return true;
    const std::span atoms(reinterpret_cast<const xcb_atom_t*>(targets->bytes.constData()),
                          std::size_t(targets->bytes.size()) / sizeof(xcb_atom_t));
    return std::ranges::count(atoms, target) > 0;
}

X11SelectionReader::Outcome X11SelectionReader::convertTo(xcb_atom_t target, Property* converted) {
    if (window == XCB_WINDOW_NONE) return Outcome::refused;
    xcb_delete_property(connection.get(), window, transfer);
    xcb_convert_selection(connection.get(), window, clipboard, target, transfer, XCB_CURRENT_TIME);
    xcb_flush(connection.get());
    while (const auto event = waitForEvent()) {
        if (eventType(event.get()) != XCB_SELECTION_NOTIFY) continue;
        const auto& answer = reinterpret_cast<const xcb_selection_notify_event_t&>(*event);
        if (answer.target != target) continue;
        if (answer.property == XCB_ATOM_NONE) return Outcome::refused;
        *converted = takeProperty();
        if (converted->type != incremental) return Outcome::converted;
        return takePieces(converted) ? Outcome::converted : Outcome::silent;
    }
    return Outcome::silent;
}

/// A long text comes piece by piece, each when the last one was taken; an empty one ends it.
bool X11SelectionReader::takePieces(Property* whole) {
    whole->bytes.clear();
    while (const auto event = waitForEvent()) {
        if (eventType(event.get()) != XCB_PROPERTY_NOTIFY) continue;
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
        if (change.atom != transfer || change.state != XCB_PROPERTY_NEW_VALUE) continue;
        const Property piece = takeProperty();
        if (piece.bytes.isEmpty()) return true;
        if (whole->bytes.size() + piece.bytes.size() > mostBytes) return false;
        whole->bytes += piece.bytes;
    }
    return false;
}

X11SelectionReader::Property X11SelectionReader::takeProperty() const {
    Property taken;
    for (std::uint32_t offset = 0;;) {
        // The server deletes it together with the last part.
        const auto cookie = xcb_get_property(connection.get(), 1, window, transfer,
                                             XCB_GET_PROPERTY_TYPE_ANY, offset, wordsPerReply);
        const XcbReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection.get(), cookie, nullptr));
        if (!reply) return taken;
        taken.type = reply->type;
        taken.bytes.append(static_cast<const char*>(xcb_get_property_value(reply.get())),
                           xcb_get_property_value_length(reply.get()));
        if (reply->bytes_after == 0) return taken;
        offset += wordsPerReply;
    }
}

std::unique_ptr<xcb_generic_event_t, void (*)(void*)> X11SelectionReader::waitForEvent() const {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    for (;;) {
        xcb_generic_event_t* event = xcb_poll_for_event(connection.get());
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (event || left.count() <= 0 || xcb_connection_has_error(connection.get()) != 0)
            return {event, std::free};
        pollfd source{xcb_get_file_descriptor(connection.get()), POLLIN, 0};
        poll(&source, 1, int(left.count()));
    }
}

xcb_atom_t X11SelectionReader::atom(const char* name) const {
    return xcbAtom(connection.get(), name);
}

} // namespace tessaline

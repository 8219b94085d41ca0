#pragma once

#include <QByteArray>
#include <QString>

#include <xcb/xcb.h>

#include <array>
#include <chrono>
#include <memory>
#include <optional>

namespace tessaline {

/// Asks the program that owns the clipboard for its text, on a connection to the X server of its
/// own. For one reading, on a thread that may wait.
class X11SelectionReader {
public:
    /// How long the owner may say nothing before it counts as hanging.
    static constexpr std::chrono::milliseconds patience{2000};

    X11SelectionReader();

    /// The text; where there is none, `problem` says why in one line.
    std::optional<QString> readText(QString* problem);

private:
    struct Disconnect {
        void operator()(xcb_connection_t* open) const { xcb_disconnect(open); }
    };
    struct Property {
        xcb_atom_t type = XCB_ATOM_NONE;
        QByteArray bytes;
    };
    enum class Outcome { converted, refused, silent };

    void createWindow();
    Outcome convertTo(xcb_atom_t target, Property* converted);
    std::optional<Outcome> outcomeOf(const xcb_generic_event_t& event) const;
    bool takePieces(Property* whole);
    Property takeProperty() const;
    bool isOffered(xcb_atom_t target, const std::optional<Property>& targets) const;
    /// The next event; null when none comes in time.
    std::unique_ptr<xcb_generic_event_t, void (*)(void*)> waitForEvent() const;
    xcb_atom_t atom(const char* name) const;

    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    xcb_window_t window = XCB_WINDOW_NONE;
    xcb_atom_t clipboard = XCB_ATOM_NONE;
    xcb_atom_t incremental = XCB_ATOM_NONE;
    xcb_atom_t transfer = XCB_ATOM_NONE;
};

} // namespace tessaline

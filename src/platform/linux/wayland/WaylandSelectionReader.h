#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>

struct wl_display;
struct wl_registry;
struct wl_seat;
struct zwlr_data_control_device_v1;
struct zwlr_data_control_manager_v1;
struct zwlr_data_control_offer_v1;

namespace tessaline {

/// Reads the clipboard's text over a connection of its own: also while no window of ours has the
/// keyboard, without which Wayland tells windows nothing of it. Any thread, one at a time.
class WaylandSelectionReader {
public:
    /// Whether the session's compositor lets programs do so.
    static bool isOffered();

    WaylandSelectionReader();
    ~WaylandSelectionReader();
    WaylandSelectionReader(const WaylandSelectionReader&) = delete;
    WaylandSelectionReader& operator=(const WaylandSelectionReader&) = delete;

    /// Waits for the program that owns the clipboard, two seconds for each part that it sends.
    /// Tells in one line why there is no text.
    std::optional<QString> readText(QString* problem);

private:
    struct Listeners;

    QString bestType() const;
    std::optional<QByteArray> receive(const QString& type);

    std::unique_ptr<wl_display, void (*)(wl_display*)> display;
    wl_registry* registry = nullptr;
    wl_seat* seat = nullptr;
    zwlr_data_control_manager_v1* manager = nullptr;
    zwlr_data_control_device_v1* device = nullptr;
    std::map<zwlr_data_control_offer_v1*, QStringList> offers; ///< and their types
    zwlr_data_control_offer_v1* selection = nullptr;
};

} // namespace tessaline

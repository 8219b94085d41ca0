#include "platform/linux/wayland/WaylandSelectionReader.h"

#include "platform/Pasteboard.h"
#include "platform/linux/wayland/LayerShellOffer.h"

#include <QStringDecoder>

#include "data-control-client.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cstring>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int patienceMilliseconds = 2000;
constexpr qsizetype mostBytes = qsizetype{1} << 30;
constexpr QLatin1StringView latin1Type("STRING");

/// In the order of preference.
constexpr std::array<QLatin1StringView, 5> textTypes{"text/plain;charset=utf-8"_L1,
                                                     "text/plain;charset=UTF-8"_L1,
                                                     "UTF8_STRING"_L1, "text/plain"_L1, latin1Type};

QString decoded(const QByteArray& bytes, const QString& type) {
    if (type == latin1Type) return QString::fromLatin1(bytes);
    // A byte-order mark is part of the text.
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder(bytes);
}

/// What comes through the pipe until its end; none where it stops coming.
std::optional<QByteArray> readAll(int pipe) {
    QByteArray all;
    std::array<char, 65536> part{};
    for (;;) {
        pollfd source{pipe, POLLIN, 0};
        if (poll(&source, 1, patienceMilliseconds) <= 0) return std::nullopt;
        const ssize_t count = read(pipe, part.data(), part.size());
        if (count == 0) return all;
        if (count < 0 || all.size() + count > mostBytes) return std::nullopt;
        all.append(part.data(), count);
    }
}

} // namespace

struct WaylandSelectionReader::Listeners {
    static constexpr wl_registry_listener registrations{
        .global =
            [](void* data, wl_registry* globals, std::uint32_t name, const char* interface,
               std::uint32_t /*version*/) {
                auto& self = *static_cast<WaylandSelectionReader*>(data);
                if (std::strcmp(interface, zwlr_data_control_manager_v1_interface.name) == 0) {
                    self.manager = static_cast<zwlr_data_control_manager_v1*>(wl_registry_bind(
                        globals, name, &zwlr_data_control_manager_v1_interface, 1));
                } else if (std::strcmp(interface, wl_seat_interface.name) == 0 && !self.seat) {
                    self.seat = static_cast<wl_seat*>(
                        wl_registry_bind(globals, name, &wl_seat_interface, 1));
                }
            },
        .global_remove = [](void* /*data*/, wl_registry* /*registry*/, std::uint32_t /*name*/) {}};

    static constexpr zwlr_data_control_offer_v1_listener types{
        .offer = [](void* data, zwlr_data_control_offer_v1* offer, const char* type) {
            static_cast<WaylandSelectionReader*>(data)->offers[offer] += QString::fromUtf8(type);
        }};

    static constexpr zwlr_data_control_device_v1_listener selections{
        .data_offer =
            [](void* data, zwlr_data_control_device_v1* /*device*/,
               zwlr_data_control_offer_v1* offer) {
                static_cast<WaylandSelectionReader*>(data)->offers[offer];
                zwlr_data_control_offer_v1_add_listener(offer, &types, data);
            },
        .selection =
            [](void* data, zwlr_data_control_device_v1* /*device*/,
               zwlr_data_control_offer_v1* offer) {
                static_cast<WaylandSelectionReader*>(data)->selection = offer;
            },
        .finished = [](void* /*data*/, zwlr_data_control_device_v1* /*device*/) {}};
};

bool WaylandSelectionReader::isOffered() {
    return compositorOffers(zwlr_data_control_manager_v1_interface.name).value_or(false);
}

WaylandSelectionReader::WaylandSelectionReader()
    : display(wl_display_connect(nullptr), wl_display_disconnect) {
    if (!display) return;
    registry = wl_display_get_registry(display.get());
    wl_registry_add_listener(registry, &Listeners::registrations, this);
    wl_display_roundtrip(display.get());
    if (!manager || !seat) return;
    device = zwlr_data_control_manager_v1_get_data_device(manager, seat);
    zwlr_data_control_device_v1_add_listener(device, &Listeners::selections, this);
    wl_display_roundtrip(display.get());
}

WaylandSelectionReader::~WaylandSelectionReader() {
    for (const auto& [offer, types] : offers)
        zwlr_data_control_offer_v1_destroy(offer);
    if (device) zwlr_data_control_device_v1_destroy(device);
    if (manager) zwlr_data_control_manager_v1_destroy(manager);
    if (seat) wl_seat_destroy(seat);
    if (registry) wl_registry_destroy(registry);
}

std::optional<QString> WaylandSelectionReader::readText(QString* problem) {
    *problem = Pasteboard::noTextProblem();
    const QString type = bestType();
    if (type.isEmpty()) return std::nullopt;
    const auto bytes = receive(type);
    if (!bytes) *problem = u"the program that owns the clipboard does not answer"_s;
    if (!bytes || bytes->isEmpty()) return std::nullopt;
    problem->clear();
    return decoded(*bytes, type);
}

QString WaylandSelectionReader::bestType() const {
    const auto found = offers.find(selection);
    if (found == offers.end()) return {};
    for (const QLatin1StringView type : textTypes)
        if (found->second.contains(type)) return type;
    return {};
}

std::optional<QByteArray> WaylandSelectionReader::receive(const QString& type) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return std::nullopt;
    zwlr_data_control_offer_v1_receive(selection, type.toUtf8().constData(), ends[1]);
    wl_display_flush(display.get());
    close(ends[1]);
    auto bytes = readAll(ends[0]);
    close(ends[0]);
    return bytes;
}

} // namespace tessaline

#include "platform/linux/wayland/CompositorOutputs.h"

#include "xdg-output-unstable-v1-client.h"

#include <QSocketNotifier>

#include <wayland-client.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace tessaline {

namespace {

constexpr std::uint32_t outputVersion = 2;  // tells when it has told everything
constexpr std::uint32_t managerVersion = 2; // tells names

template <typename Object>
using Owned = std::unique_ptr<Object, void (*)(Object*)>;

/// A monitor while it is there.
struct Monitor {
    Monitor(wl_output* ownedOutput, std::uint32_t globalName)
        : output(ownedOutput, wl_output_destroy), global(globalName) {}

    Owned<wl_output> output;
    Owned<zxdg_output_v1> details{nullptr, zxdg_output_v1_destroy};
    std::uint32_t global;
    CompositorOutput state;
};

CompositorOutput& stateOf(void* data) {
    return static_cast<Monitor*>(data)->state;
}

constexpr wl_output_listener outputListener{
    .geometry =
        [](void* data, wl_output*, int, int, int, int, int, const char* make, const char* model,
           int) {
            stateOf(data).manufacturer = QString::fromUtf8(make);
            stateOf(data).model = QString::fromUtf8(model);
        },
    .mode = [](void*, wl_output*, std::uint32_t, int, int, int) {},
    .done = [](void*, wl_output*) {},
    .scale = [](void*, wl_output*, int) {},
    .name = nullptr,
    .description = nullptr};

constexpr zxdg_output_v1_listener detailsListener{
    .logical_position = [](void* data, zxdg_output_v1*, int x,
                           int y) { stateOf(data).area.moveTo(x, y); },
    .logical_size =
        [](void* data, zxdg_output_v1*, int width, int height) {
            stateOf(data).area.setSize({width, height});
        },
    .done = [](void*, zxdg_output_v1*) {},
    .name = [](void* data, zxdg_output_v1*,
               const char* name) { stateOf(data).name = QString::fromUtf8(name); },
    .description = [](void*, zxdg_output_v1*, const char*) {}};

} // namespace

class CompositorOutputs::Connection {
public:
    explicit Connection(wl_display* ownedDisplay)
        : display(ownedDisplay, wl_display_disconnect)
        , registry(wl_display_get_registry(display.get()), wl_registry_destroy)
        , notifier(wl_display_get_fd(display.get()), QSocketNotifier::Read) {
        static constexpr wl_registry_listener listener{.global = add, .global_remove = remove};
        wl_registry_add_listener(registry.get(), &listener, this);
        QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [this] { read(); });
    }

    /// Waits for the list, then for what there is to say of each. False where no names come.
    bool look() {
        if (wl_display_roundtrip(display.get()) < 0 || !manager) return false;
        return wl_display_roundtrip(display.get()) >= 0;
    }

    std::vector<CompositorOutput> all() const {
        std::vector<CompositorOutput> outputs;
        for (const auto& monitor : monitors)
            outputs.push_back(monitor->state);
        return outputs;
    }

    std::function<void()> onRead;

private:
    static void add(void* data, wl_registry* registry, std::uint32_t name, const char* interface,
                    std::uint32_t version) {
        auto& self = *static_cast<Connection*>(data);
        if (std::strcmp(interface, wl_output_interface.name) == 0 && version >= outputVersion) {
            auto* output = static_cast<wl_output*>(
                wl_registry_bind(registry, name, &wl_output_interface, outputVersion));
            self.monitors.push_back(std::make_unique<Monitor>(output, name));
            wl_output_add_listener(output, &outputListener, self.monitors.back().get());
        } else if (std::strcmp(interface, zxdg_output_manager_v1_interface.name) == 0 &&
                   version >= managerVersion) {
            self.manager.reset(static_cast<zxdg_output_manager_v1*>(wl_registry_bind(
                registry, name, &zxdg_output_manager_v1_interface, managerVersion)));
        }
        self.askForDetails();
    }

    static void remove(void* data, wl_registry* /*registry*/, std::uint32_t name) {
        auto& monitors = static_cast<Connection*>(data)->monitors;
        std::erase_if(monitors, [&](const auto& monitor) { return monitor->global == name; });
    }

    /// The manager may come after monitors.
    void askForDetails() {
        if (!manager) return;
        for (const auto& monitor : monitors) {
            if (monitor->details) continue;
            monitor->details.reset(
                zxdg_output_manager_v1_get_xdg_output(manager.get(), monitor->output.get()));
            zxdg_output_v1_add_listener(monitor->details.get(), &detailsListener, monitor.get());
        }
    }

    void read() {
        while (wl_display_prepare_read(display.get()) != 0)
            wl_display_dispatch_pending(display.get());
        wl_display_flush(display.get());
        if (wl_display_read_events(display.get()) < 0) return notifier.setEnabled(false);
        wl_display_dispatch_pending(display.get());
        wl_display_flush(display.get());
        if (onRead) onRead();
    }

    Owned<wl_display> display;
    Owned<wl_registry> registry;
    Owned<zxdg_output_manager_v1> manager{nullptr, zxdg_output_manager_v1_destroy};
    std::vector<std::unique_ptr<Monitor>> monitors;
    QSocketNotifier notifier;
};

std::unique_ptr<CompositorOutputs> CompositorOutputs::open() {
    wl_display* display = wl_display_connect(nullptr);
    if (!display) return nullptr;
    auto connection = std::make_unique<Connection>(display);
    if (!connection->look()) return nullptr;
    return std::unique_ptr<CompositorOutputs>(new CompositorOutputs(std::move(connection)));
}

CompositorOutputs::CompositorOutputs(std::unique_ptr<Connection> openConnection)
    : connection(std::move(openConnection)) {
    connection->onRead = [this, before = all()]() mutable {
        if (std::exchange(before, all()) != all() && onChange) onChange();
    };
}

CompositorOutputs::~CompositorOutputs() = default;

std::vector<CompositorOutput> CompositorOutputs::all() const {
    return connection->all();
}

} // namespace tessaline

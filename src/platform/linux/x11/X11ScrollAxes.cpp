#include "platform/linux/x11/X11ScrollAxes.h"

#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/XcbReply.h"

#include <xcb/xinput.h>

#include <cstddef>
#include <span>
#include <string_view>

namespace tessaline {

namespace {

constexpr unsigned bitsPerWord = 32;

double toDouble(const xcb_input_fp3232_t& number) {
    return number.integral + number.frac * 0x1p-32;
}

std::span<const std::uint32_t> valuatorMask(const xcb_input_button_press_event_t& event) {
    return {xcb_input_button_press_valuator_mask(&event),
            static_cast<std::size_t>(xcb_input_button_press_valuator_mask_length(&event))};
}

bool isSet(std::span<const std::uint32_t> mask, unsigned bit) {
    const unsigned word = bit / bitsPerWord;
    return word < mask.size() && (mask[word] >> (bit % bitsPerWord) & 1U) != 0;
}

/// An event lists only the values that changed, in the order of their valuators.
std::optional<double> valuatorValue(const xcb_input_button_press_event_t& event,
                                    unsigned valuator) {
    const auto mask = valuatorMask(event);
    if (!isSet(mask, valuator)) return std::nullopt;
    std::size_t index = 0;
    for (unsigned bit = 0; bit < valuator; ++bit)
        index += isSet(mask, bit) ? 1 : 0;
    return toDouble(xcb_input_button_press_axisvalues(&event)[index]);
}

/// XWayland names its devices after itself.
ScrollAxis::Source sourceOf(const xcb_input_xi_device_info_t& device) {
    const std::string_view name(xcb_input_xi_device_info_name(&device),
                                std::size_t(xcb_input_xi_device_info_name_length(&device)));
    return name.starts_with("xwayland-") ? ScrollAxis::Source::xWayland
                                         : ScrollAxis::Source::device;
}

struct VerticalAxis {
    std::uint16_t valuator = 0;
    double increment = 0.0;
    double position = 0.0;
};

template <typename T>
const T& as(const xcb_input_device_class_t& deviceClass) {
    return reinterpret_cast<const T&>(deviceClass);
}

std::optional<VerticalAxis> verticalAxisOf(const xcb_input_xi_device_info_t& device) {
    std::optional<VerticalAxis> found;
    for (auto i = xcb_input_xi_device_info_classes_iterator(&device); i.rem > 0;
         xcb_input_device_class_next(&i)) {
        if (i.data->type != XCB_INPUT_DEVICE_CLASS_TYPE_SCROLL) continue;
        const auto& scroll = as<xcb_input_scroll_class_t>(*i.data);
        const double increment = toDouble(scroll.increment);
        if (scroll.scroll_type == XCB_INPUT_SCROLL_TYPE_VERTICAL && increment != 0.0)
            found = {.valuator = scroll.number, .increment = increment};
    }
    if (!found) return std::nullopt;
    for (auto i = xcb_input_xi_device_info_classes_iterator(&device); i.rem > 0;
         xcb_input_device_class_next(&i)) {
        if (i.data->type != XCB_INPUT_DEVICE_CLASS_TYPE_VALUATOR) continue;
        const auto& valuator = as<xcb_input_valuator_class_t>(*i.data);
        if (valuator.number == found->valuator) found->position = toDouble(valuator.value);
    }
    return found;
}

} // namespace

void X11ScrollAxes::refresh(const X11Connection& connection) {
    const XcbReply<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        connection.xcb(), xcb_input_xi_query_device(connection.xcb(), XCB_INPUT_DEVICE_ALL),
        nullptr));
    if (!reply) return;
    std::map<std::uint16_t, Device> present;
    for (auto i = xcb_input_xi_query_device_infos_iterator(reply.get()); i.rem > 0;
         xcb_input_xi_device_info_next(&i)) {
        const auto vertical = verticalAxisOf(*i.data);
        if (!vertical) continue;
        const auto known = devices.find(i.data->deviceid);
        Device device =
            known != devices.end() && known->second.valuator == vertical->valuator
                ? known->second
                : Device{vertical->valuator, ScrollAxis(vertical->increment, sourceOf(*i.data))};
        device.axis.restartAt(vertical->position);
        present.emplace(i.data->deviceid, device);
    }
    devices = std::move(present);
}

std::optional<ScrollAxis::Delta>
X11ScrollAxes::scrolledBy(const xcb_input_button_press_event_t& motion) {
    const auto device = devices.find(motion.sourceid);
    if (device == devices.end()) return std::nullopt;
    const auto position = valuatorValue(motion, device->second.valuator);
    if (!position) return std::nullopt;
    return device->second.axis.moveTo(*position, motion.time);
}

} // namespace tessaline

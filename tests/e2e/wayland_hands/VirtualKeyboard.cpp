#include "VirtualKeyboard.h"

#include "WaylandSeat.h"
#include "virtual-keyboard-client.h"

#include <xkbcommon/xkbcommon.h>

#include <cstdlib>
#include <map>
#include <sstream>
#include <string_view>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

namespace tessaline {

namespace {

constexpr std::uint32_t evdevOffset = 8; // between what the kernel and what XKB calls a key

std::uint32_t symbolOf(const std::string& name) {
    static const std::map<std::string_view, xkb_keysym_t> shortNames = {{"ctrl", XKB_KEY_Control_L},
                                                                        {"shift", XKB_KEY_Shift_L},
                                                                        {"alt", XKB_KEY_Alt_L},
                                                                        {"super", XKB_KEY_Super_L}};
    const auto found = shortNames.find(name);
    if (found != shortNames.end()) return found->second;
    return xkb_keysym_from_name(name.c_str(), XKB_KEYSYM_NO_FLAGS);
}

std::vector<std::string> keysOf(const std::string& chord) {
    std::vector<std::string> keys;
    std::istringstream parts(chord);
    for (std::string key; std::getline(parts, key, '+');)
        keys.push_back(key);
    return keys;
}

xkb_keymap* americanKeymap() {
    xkb_context* context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    const xkb_rule_names names{.layout = "us"};
    xkb_keymap* made = xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
    xkb_context_unref(context);
    return made;
}

} // namespace

void VirtualKeyboard::Freed::operator()(xkb_keymap* map) const {
    xkb_keymap_unref(map);
}

void VirtualKeyboard::Freed::operator()(xkb_state* state) const {
    xkb_state_unref(state);
}

VirtualKeyboard::VirtualKeyboard(WaylandSeat& ofSeat)
    : seat(ofSeat)
    , keymap(americanKeymap())
    , state(xkb_state_new(keymap.get()))
    , keyboard(zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(seat.keyboards, seat.seat)) {
    offerKeymap();
}

VirtualKeyboard::~VirtualKeyboard() {
    zwp_virtual_keyboard_v1_destroy(keyboard);
}

void VirtualKeyboard::offerKeymap() {
    char* text = xkb_keymap_get_as_string(keymap.get(), XKB_KEYMAP_FORMAT_TEXT_V1);
    const std::string_view bytes(text, std::string_view(text).size() + 1);
    const int file = memfd_create("keymap", MFD_CLOEXEC);
    if (::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size())) {
        zwp_virtual_keyboard_v1_keymap(keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file,
                                       static_cast<std::uint32_t>(bytes.size()));
    }
    ::close(file);
    std::free(text);
}

bool VirtualKeyboard::press(const std::string& name) {
    return send(name, true);
}

bool VirtualKeyboard::release(const std::string& name) {
    return send(name, false);
}

bool VirtualKeyboard::strike(const std::string& chord) {
    const std::vector<std::string> keys = keysOf(chord);
    for (const std::string& key : keys) {
        if (!press(key)) return false;
    }
    for (auto key = keys.rbegin(); key != keys.rend(); ++key)
        release(*key);
    return true;
}

bool VirtualKeyboard::type(const std::string& text) {
    for (const char character : text) {
        if (!strike(xkb_utf32_to_keysym(static_cast<unsigned char>(character)))) return false;
    }
    return true;
}

bool VirtualKeyboard::strike(std::uint32_t symbol) {
    const auto key = find(symbol);
    if (!key) return false;
    if (key->isShifted) press("shift");
    send(key->code, true);
    send(key->code, false);
    if (key->isShifted) release("shift");
    return true;
}

std::optional<VirtualKeyboard::Key> VirtualKeyboard::find(std::uint32_t symbol) const {
    if (symbol == XKB_KEY_NoSymbol) return std::nullopt;
    for (xkb_level_index_t level : {0U, 1U}) {
        for (auto code = xkb_keymap_min_keycode(keymap.get());
             code <= xkb_keymap_max_keycode(keymap.get()); ++code) {
            const xkb_keysym_t* symbols = nullptr;
            const int count =
                xkb_keymap_key_get_syms_by_level(keymap.get(), code, 0, level, &symbols);
            if (count == 1 && symbols[0] == symbol) return Key{code, level == 1};
        }
    }
    return std::nullopt;
}

bool VirtualKeyboard::send(const std::string& name, bool isDown) {
    const auto key = find(symbolOf(name));
    if (key) send(key->code, isDown);
    return key.has_value();
}

void VirtualKeyboard::send(std::uint32_t code, bool isDown) {
    zwp_virtual_keyboard_v1_key(keyboard, WaylandSeat::now(), code - evdevOffset,
                                isDown ? WL_KEYBOARD_KEY_STATE_PRESSED
                                       : WL_KEYBOARD_KEY_STATE_RELEASED);
    xkb_state_update_key(state.get(), code, isDown ? XKB_KEY_DOWN : XKB_KEY_UP);
    const auto modifiers = [this](xkb_state_component component) {
        return xkb_state_serialize_mods(state.get(), component);
    };
    zwp_virtual_keyboard_v1_modifiers(keyboard, modifiers(XKB_STATE_MODS_DEPRESSED),
                                      modifiers(XKB_STATE_MODS_LATCHED),
                                      modifiers(XKB_STATE_MODS_LOCKED), 0);
}

} // namespace tessaline

#include "platform/linux/x11/KeyboardLetters.h"

#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

#include <array>

namespace tessaline {

namespace {

using Context = std::unique_ptr<xkb_context, decltype(&xkb_context_unref)>;

Context makeContext(xkb_context_flags flags) {
    return {xkb_context_new(flags), &xkb_context_unref};
}

bool isLatinLetter(const QString& text) {
    return text.size() == 1 &&
           ((text[0] >= u'a' && text[0] <= u'z') || (text[0] >= u'A' && text[0] <= u'Z'));
}

} // namespace

KeyboardLetters KeyboardLetters::read(xcb_connection_t* connection) {
    const Context context = makeContext(static_cast<xkb_context_flags>(
        XKB_CONTEXT_NO_DEFAULT_INCLUDES | XKB_CONTEXT_NO_ENVIRONMENT_NAMES));
    const std::int32_t keyboard = xkb_x11_get_core_keyboard_device_id(connection);
    if (!context || keyboard < 0) return KeyboardLetters(nullptr);
    return KeyboardLetters(xkb_x11_keymap_new_from_device(context.get(), connection, keyboard,
                                                          XKB_KEYMAP_COMPILE_NO_FLAGS));
}

KeyboardLetters KeyboardLetters::fromLayouts(const char* layouts, const char* variants) {
    const Context context = makeContext(XKB_CONTEXT_NO_ENVIRONMENT_NAMES);
    const xkb_rule_names names{
        .rules = "evdev", .model = "pc105", .layout = layouts, .variant = variants, .options = ""};
    return KeyboardLetters(
        xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
}

KeyboardLetters::KeyboardLetters(xkb_keymap* ownedKeymap)
    : keymap(ownedKeymap, [](xkb_keymap* owned) { xkb_keymap_unref(owned); }) {}

QString KeyboardLetters::letter(std::uint32_t key, std::uint32_t layout) const {
    if (!keymap) return {};
    QString here = typed(key, layout);
    if (here.isEmpty() || isLatinLetter(here)) return here;
    const std::uint32_t layouts = xkb_keymap_num_layouts_for_key(keymap.get(), key);
    for (std::uint32_t other = 0; other < layouts; ++other) {
        QString there = typed(key, other);
        if (isLatinLetter(there)) return there;
    }
    return here;
}

std::vector<std::uint32_t> KeyboardLetters::keysFor(const QString& wanted,
                                                    std::uint32_t layout) const {
    std::vector<std::uint32_t> keys;
    if (!keymap) return keys;
    const xkb_keycode_t last = xkb_keymap_max_keycode(keymap.get());
    for (xkb_keycode_t key = xkb_keymap_min_keycode(keymap.get()); key <= last; ++key)
        if (letter(key, layout).toLower() == wanted) keys.push_back(key);
    return keys;
}

QString KeyboardLetters::typed(std::uint32_t key, std::uint32_t layout) const {
    const xkb_keysym_t* symbols = nullptr;
    if (xkb_keymap_key_get_syms_by_level(keymap.get(), key, layout, 0, &symbols) != 1) return {};
    const char32_t character = xkb_keysym_to_utf32(symbols[0]);
    return character == 0 ? QString() : QString::fromUcs4(&character, 1);
}

} // namespace tessaline

#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

struct xcb_connection_t;
struct xkb_keymap;

namespace tessaline {

/// What the keys of the keyboard mean on its layouts.
class KeyboardLetters {
public:
    /// The server's keyboard as it is now. XKB has been switched on for the connection.
    static KeyboardLetters read(xcb_connection_t* connection);

    /// A keyboard with these layouts, such as "us,ru", in these variants, such as ",phonetic".
    static KeyboardLetters fromLayouts(const char* layouts, const char* variants);

    /// What the key types on this layout without modifiers. A key that types no Latin letter there
    /// means what it does on the first layout on which it types one, as in everybody's menus. Empty
    /// for keys that type nothing.
    QString letter(std::uint32_t key, std::uint32_t layout) const;

    /// The keys with this letter on this layout.
    std::vector<std::uint32_t> keysFor(const QString& letter, std::uint32_t layout) const;

private:
    explicit KeyboardLetters(xkb_keymap* keymap);
    QString typed(std::uint32_t key, std::uint32_t layout) const;

    std::shared_ptr<xkb_keymap> keymap; ///< null when it could not be read
};

} // namespace tessaline

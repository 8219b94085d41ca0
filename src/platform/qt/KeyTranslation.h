#pragma once

#include "platform/KeyEvent.h"

#include <Qt>

class QKeyEvent;

namespace tessaline {

/// How Qt names the modifiers of this system.
enum class KeyTranslation {
    control, ///< Control is Control, Meta is Command (Super), and Control + V pastes
    command  ///< as on a Mac: Control is Command, Meta is Control
};

/// How Qt names them on the system that the program is built for. Any thread.
KeyTranslation systemKeyTranslation();

/// What modifiers of Qt are to our shortcuts.
ModifierFlags translateModifiers(Qt::KeyboardModifiers held, KeyTranslation translation);

/// The same on the system that the program is built for, as in events of the pointer.
inline ModifierFlags translateModifiers(Qt::KeyboardModifiers held) {
    return translateModifiers(held, systemKeyTranslation());
}

/// What a key event of Qt is to our shortcuts. With `KeyTranslation::control`, exactly Control + V
/// comes as Command + V, since that is how people paste there.
KeyEvent translateKey(const QKeyEvent& event, KeyTranslation translation);

} // namespace tessaline

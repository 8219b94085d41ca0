#pragma once

#include "platform/KeyEvent.h"

class QKeyEvent;

namespace tessaline {

/// How Qt names the modifiers of this system.
enum class KeyTranslation {
    control, ///< Control is Control, Meta is Command (Super), and Control + V pastes
    command  ///< as on a Mac: Control is Command, Meta is Control
};

/// What a key event of Qt is to our shortcuts. With `KeyTranslation::control`, exactly Control + V
/// comes as Command + V, since that is how people paste there.
KeyEvent translateKey(const QKeyEvent& event, KeyTranslation translation);

} // namespace tessaline

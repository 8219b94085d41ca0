#include "platform/qt/KeyTranslation.h"

#include <QKeyEvent>

namespace tessaline {

namespace {

/// The text of a key with Control is a control character; its code is the letter that the key has
/// in menus, on every layout.
QString charactersOf(const QKeyEvent& event) {
    const auto code = static_cast<char32_t>(event.key());
    const bool isCharacter = code >= U' ' && code < char32_t{Qt::Key_Escape};
    return isCharacter ? QString::fromUcs4(&code, 1).toLower() : QString();
}

int keyCodeOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Up:
        return KeyEvent::upArrow;
    case Qt::Key_Down:
        return KeyEvent::downArrow;
    default:
        return -1;
    }
}

} // namespace

ModifierFlags translateModifiers(Qt::KeyboardModifiers held, KeyTranslation translation) {
    const bool isMac = translation == KeyTranslation::command;
    ModifierFlags flags = 0;
    if (held.testFlag(Qt::ShiftModifier)) flags |= Modifier::shift;
    if (held.testFlag(Qt::AltModifier)) flags |= Modifier::option;
    if (held.testFlag(Qt::ControlModifier)) flags |= isMac ? Modifier::command : Modifier::control;
    if (held.testFlag(Qt::MetaModifier)) flags |= isMac ? Modifier::control : Modifier::command;
    return flags;
}

KeyEvent translateKey(const QKeyEvent& event, KeyTranslation translation) {
    KeyEvent key{.characters = charactersOf(event),
                 .keyCode = keyCodeOf(event),
                 .modifiers = translateModifiers(event.modifiers(), translation),
                 .isRepeat = event.isAutoRepeat()};
    const bool isControlV = translation == KeyTranslation::control &&
                            key.modifiers == Modifier::control && event.key() == Qt::Key_V;
    if (isControlV) key.modifiers = Modifier::command;
    return key;
}

} // namespace tessaline

#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QScrollBar>
#include <QWidget>

#include <utility>
#include <vector>

namespace tessaline {

/// What a screen reader says of a control: its label's text or, without one, its own name.
using SpokenControl = std::pair<QAccessible::Role, QString>;

/// Everything in a window that takes the focus, in the order of its making.
inline std::vector<SpokenControl> spokenControls(const QWidget& window) {
    std::vector<SpokenControl> controls;
    for (QWidget* part : window.findChildren<QWidget*>()) {
        const bool isControl = part->window() == &window && part->focusPolicy() != Qt::NoFocus &&
                               qobject_cast<QScrollBar*>(part) == nullptr;
        if (!isControl) continue;
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(part);
        const auto labels = spoken->relations(QAccessible::Label);
        QAccessibleInterface* named = labels.isEmpty() ? spoken : labels.front().first;
        controls.emplace_back(spoken->role(), named->text(QAccessible::Name));
    }
    return controls;
}

/// The buttons whose name for screen readers lacks the text that is seen on them, which who speaks
/// to the computer says.
inline std::vector<SpokenControl> buttonsNamedUnlikeTheirText(const QWidget& window) {
    std::vector<SpokenControl> buttons;
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(button);
        const QString name = spoken->text(QAccessible::Name);
        const bool inWholeWords = (name + u' ').contains(button->text() + u' ');
        if (!inWholeWords) buttons.emplace_back(spoken->role(), name);
    }
    return buttons;
}

} // namespace tessaline

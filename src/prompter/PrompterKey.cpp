#include "prompter/PrompterKey.h"

#include <QKeyEvent>

namespace tessaline {

namespace {

using Deed = PrompterKey::Deed;

std::optional<Deed> deedOf(int key) {
    switch (key) {
    case Qt::Key_Space:
    case Qt::Key_F5:
        return Deed::startOrStop;
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the key of the plus sign where that needs Shift
        return Deed::faster;
    case Qt::Key_Minus:
        return Deed::slower;
    case Qt::Key_B:
    case Qt::Key_Period:
        return Deed::black;
    case Qt::Key_M:
        return Deed::mirror;
    case Qt::Key_G:
        return Deed::guide;
    case Qt::Key_F1:
    case Qt::Key_Question:
        return Deed::keys;
    default:
        return std::nullopt;
    }
}

bool takesSteps(Deed deed) {
    return deed == Deed::faster || deed == Deed::slower;
}

} // namespace

std::optional<PrompterKey> PrompterKey::of(const QKeyEvent& event) {
    if (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) return std::nullopt;
    if (event.key() >= Qt::Key_1 && event.key() <= Qt::Key_9 && !event.isAutoRepeat())
        return PrompterKey{Deed::toHeading, event.key() - Qt::Key_0};
    const auto deed = deedOf(event.key());
    if (!deed || (event.isAutoRepeat() && !takesSteps(*deed))) return std::nullopt;
    return PrompterKey{*deed};
}

} // namespace tessaline

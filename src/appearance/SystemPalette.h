#pragma once

#include <QColor>

namespace tessaline {

/// The colours of the dark look, by the names under which the desktop knows them. Every window and
/// control takes its colours from here.
struct SystemPalette {
    static constexpr QColor green{48, 209, 88};
    static constexpr QColor orange{255, 159, 10};
    static constexpr QColor yellow{255, 214, 10};
    static constexpr QColor red{255, 69, 58};
    static constexpr QColor blue{10, 132, 255};

    /// The ground of white text that is selected: the blue is too bright for it.
    static constexpr QColor selection{10, 110, 220};

    static constexpr QColor white{255, 255, 255};
    static constexpr QColor black{0, 0, 0};

    /// Text in falling order of importance: white at falling alpha.
    static constexpr QColor label{255, 255, 255, 216};
    static constexpr QColor secondaryLabel{255, 255, 255, 140};
    static constexpr QColor tertiaryLabel{255, 255, 255, 63};
    static constexpr QColor quaternaryLabel{255, 255, 255, 25};

    /// Grounds: of a window, of a field or group on it, and of what can be pressed.
    static constexpr QColor windowBackground{36, 36, 38};
    static constexpr QColor settingsBackground{42, 42, 44};
    static constexpr QColor controlBackground{28, 28, 30};
    static constexpr QColor button{72, 72, 75};

    /// Parts of controls that we draw ourselves.
    static constexpr QColor track{84, 84, 88};
    static constexpr QColor pressedKnob{221, 221, 224};
    static constexpr QColor focusRing{94, 174, 255};
    static constexpr QColor disabledLabel{255, 255, 255, 102};

    /// The prompter's warm text colour.
    static QColor amber();

    /// The colour at another alpha, from 0 to 1.
    static QColor withAlpha(QColor color, double alpha);
};

} // namespace tessaline

#pragma once

#include "ui/controls/BezelButton.h"

namespace tessaline {

/// The button that Return presses, whichever control of its window has the focus.
class DefaultButton : public BezelButton {
    Q_OBJECT

public:
    /// `window` is the window whose Return key the button takes.
    DefaultButton(const QString& title, QWidget& window);
};

} // namespace tessaline

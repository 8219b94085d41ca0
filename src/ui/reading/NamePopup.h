#pragma once

#include "ui/controls/PopupButton.h"

#include <QElapsedTimer>

namespace tessaline {

/// A popup button whose items are found by typing their names, also names of several words: a space
/// in the middle of one does not pop the items up.
class NamePopup : public PopupButton {
    Q_OBJECT

public:
    using PopupButton::PopupButton;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QElapsedTimer sinceTyped;
};

} // namespace tessaline

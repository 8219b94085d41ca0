#pragma once

#include "prompter/covers/Cover.h"

namespace tessaline {

/// Blacks the text out until it is asked for again; a click asks for it.
class BlackCover : public Cover {
    Q_OBJECT

public:
    explicit BlackCover(QWidget* parent);

    void setBlack(bool on);

Q_SIGNALS:
    void pressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace tessaline

#pragma once

#include <QWidget>

namespace tessaline {

/// A rounded ground, set off from the window's, that holds what belongs together.
class Card : public QWidget {
    Q_OBJECT

public:
    explicit Card(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessaline

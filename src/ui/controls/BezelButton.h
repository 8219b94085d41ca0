#pragma once

#include <QPushButton>

namespace tessaline {

/// A push button on a rounded ground; the default button of its window stands out by its colour.
class BezelButton : public QPushButton {
    Q_OBJECT

public:
    /// A button with a title of this size, in points.
    explicit BezelButton(const QString& title, double points = 13, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessaline

#pragma once

#include <QComboBox>

namespace tessaline {

/// A button that shows the chosen one of its items and pops all of them up. `activated` tells of
/// choices by the user.
class PopupButton : public QComboBox {
    Q_OBJECT

public:
    /// A button of this width, in points. The name is for screen readers.
    PopupButton(const QString& accessibleName, int width, QWidget* parent = nullptr);

    /// Selects the first item that carries this value. False, with nothing changed, without one.
    bool selectItemCarrying(const QVariant& value);

    void showPopup() override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace tessaline

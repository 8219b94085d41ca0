#pragma once

#include <QIcon>
#include <QLabel>

namespace tessaline {

/// An icon scaled into a square, as sharp as the screen shows it.
class IconImage : public QLabel {
    Q_OBJECT

public:
    /// A square of so many points.
    IconImage(const QIcon& icon, int side, QWidget* parent = nullptr);

    /// Shows another icon.
    void setIcon(const QIcon& newIcon);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon icon;
};

} // namespace tessaline

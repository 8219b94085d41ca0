#pragma once

#include <QIcon>
#include <QLabel>

namespace tessaline {

/// An icon scaled into a square, as sharp as the screen shows it. Main thread only.
class IconImage : public QLabel {
public:
    /// A square of so many points.
    IconImage(const QIcon& icon, int size, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon icon;
};

} // namespace tessaline

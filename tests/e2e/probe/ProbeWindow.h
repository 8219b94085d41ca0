#pragma once

#include <QColor>
#include <QWidget>

namespace tessaline {

/// A window of one colour that reports the keys and the keyboard focus it receives, a line each, on
/// standard output.
class ProbeWindow final : public QWidget {
public:
    explicit ProbeWindow(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QColor color;
};

} // namespace tessaline

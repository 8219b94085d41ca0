#pragma once

#include <QColor>
#include <QWidget>

#include <functional>

namespace tessaline {

/// A window of one colour that reports the keys and the keyboard focus it receives, a line each, on
/// standard output.
class ProbeWindow final : public QWidget {
public:
    explicit ProbeWindow(const QColor& color);

    std::function<void()> onEscape; ///< may be empty

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QColor color;
};

} // namespace tessaline

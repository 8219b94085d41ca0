#pragma once

#include <QWidget>

#include <functional>

namespace tessaline {

/// A window full of controls that stands beside the prompter. Its content is for who derives it to
/// make, with `fillWithContent`. Closing hides it; it can be shown again.
class SideWindow : public QWidget {
    Q_OBJECT

public:
    explicit SideWindow(const QString& title);

    /// Its size without a frame where there is room for everything, and how much wider it is while
    /// it scrolls.
    QSize wholeSize() const;
    int scrollBarWidth() const;

    /// Gets as large as it can be with this height, in points and without a frame.
    void fitInto(int room);

    /// Whether the user holds a slider with the mouse, so that the window had better stay where it
    /// is.
    bool isSliderHeld() const;

    /// Called when the window has another size, or could have since a slider was let go.
    std::function<void()> onSizeChanged;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    void announceSize() const;
};

} // namespace tessaline

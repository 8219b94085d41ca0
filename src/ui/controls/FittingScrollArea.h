#pragma once

#include <QScrollArea>

#include <optional>

namespace tessaline {

/// As large as its content, so that nothing scrolls, except where there is less room than that.
/// What has the keyboard stays in sight. Main thread only.
class FittingScrollArea : public QScrollArea {
    Q_OBJECT

public:
    /// Takes ownership of the content, which has a layout and this size at least; its width stays
    /// so.
    FittingScrollArea(QWidget* content, const QSize& least, QWidget* parent = nullptr);

    /// Follows the content's height at once; by itself it does so only while it is on screen.
    void fit();

    /// The height in points that there is for the window, title bar included. Without a value it is
    /// the screen's. A window that shows nothing helps nobody: less than 240 counts as 240.
    void setRoom(std::optional<int> points);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    int contentHeight() const;

    int roomForContent() const;

    QSize least;
    std::optional<int> room;
};

} // namespace tessaline

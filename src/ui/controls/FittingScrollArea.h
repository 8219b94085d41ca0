#pragma once

#include <QScrollArea>

#include <optional>

namespace tessaline {

/// What a title bar takes at most, in points, for as long as nobody knows.
inline constexpr int titleBarAllowance = 40;

/// As large as its content, so that nothing scrolls, except where there is less room than that.
/// What has the keyboard stays in sight; while that is no control of the content, the keys scroll.
class FittingScrollArea : public QScrollArea {
    Q_OBJECT

public:
    /// Takes ownership of the content, which has a layout and this size at least; its width stays
    /// so. A footer stands below the content and stays in sight when that scrolls. It is borrowed,
    /// and a sibling, since screen readers see no other children of scroll areas.
    FittingScrollArea(QWidget* content, const QSize& least, QWidget* footer = nullptr,
                      QWidget* parent = nullptr);

    /// Follows the content's height at once; by itself it does so only while it is on screen.
    void fit();

    /// The height in points that there is for it; at first the screen's, less a title bar. What
    /// shows nothing helps nobody: less than 100 counts as 100.
    void setRoom(int points);

    /// Its size where there is room for everything.
    QSize wholeSize() const;

    /// How much wider than that it is while it scrolls.
    int scrollBarWidth() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int contentHeight() const;
    int footerHeight() const;
    int room() const;
    void placeFooter();
    void showFocused();

    QSize least;
    QWidget* footer;
    std::optional<int> givenRoom;
};

} // namespace tessaline

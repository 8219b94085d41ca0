#pragma once

#include <QScrollArea>

namespace tessaline {

/// As large as its content, so that nothing scrolls, except where the screen is lower than that.
/// Main thread only.
class FittingScrollArea : public QScrollArea {
    Q_OBJECT

public:
    /// Takes ownership of the content, which has a layout and this size at least; its width stays
    /// so.
    FittingScrollArea(QWidget* content, const QSize& least, QWidget* parent = nullptr);

    /// Follows the content's height at once; by itself it does so only while it is on screen.
    void fit();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int contentHeight() const;

    QSize least;
};

} // namespace tessaline

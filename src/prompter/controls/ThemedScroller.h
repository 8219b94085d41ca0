#pragma once

#include "prompter/controls/OverlayFade.h"

#include <QColor>
#include <QScrollBar>
#include <QStyle>

namespace tessaline {

/// A thin vertical scroller that lies over the content: a translucent track with a pill. It is seen
/// while the reader scrolls or points at it and fades out a second later. Setting the value moves
/// the pill but does not show it, and repaints nothing while it is hidden or the pill stays on the
/// same pixels. The wheel goes to the content underneath.
class ThemedScroller final : public QScrollBar {
    Q_OBJECT

public:
    explicit ThemedScroller(QWidget* parent = nullptr);

    /// Shows the scroller for a second; for scrolling that does not pass through it.
    void reveal();

    /// From 0, hidden, to 1.
    double opacity() const;

    /// Where the track and the pill are, in points from the widget's top left corner.
    QRectF slotRect() const;
    QRectF knobRect() const;

    // Whoever changes these on a visible scroller calls update().
    QColor slotColor = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.2F);
    QColor knobColor = QColor::fromRgbF(0.3F, 0.3F, 0.3F, 0.7F);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void sliderChange(SliderChange change) override;

private:
    QRect partRect(QStyle::SubControl part) const;

    OverlayFade fade;
    QRectF paintedKnob;
};

} // namespace tessaline

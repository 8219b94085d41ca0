#pragma once

#include <QCommonStyle>

namespace tessaline {

/// The measures of a vertical overlay scroller: thin, lying on top of the content, without line
/// buttons; the whole bounds are the slot.
class ThemedScrollerStyle final : public QCommonStyle {
    Q_OBJECT

public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
};

} // namespace tessaline

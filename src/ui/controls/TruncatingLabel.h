#pragma once

#include <QLabel>

namespace tessaline {

/// A line of text that shows an ellipsis in place of what does not fit; the tool tip and screen
/// readers have the whole. Main thread only.
class TruncatingLabel : public QLabel {
    Q_OBJECT

public:
    /// A label of this width, in points, that loses its middle or its tail.
    TruncatingLabel(Qt::TextElideMode mode, int width, QWidget* parent = nullptr);

    /// Shows another text.
    void showText(const QString& whole);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::TextElideMode mode;
};

} // namespace tessaline

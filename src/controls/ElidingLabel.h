#pragma once

#include <QLabel>

namespace tessaline {

/// A line of text that shows an ellipsis in place of what does not fit; screen readers have the
/// whole.
class ElidingLabel : public QLabel {
    Q_OBJECT

public:
    /// A label that loses its beginning, its middle or its end.
    explicit ElidingLabel(Qt::TextElideMode mode, QWidget* parent = nullptr);

    /// Shows another text, and in the tool tip the whole of one that does not fit.
    void showWithToolTip(const QString& whole);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::TextElideMode mode;
};

} // namespace tessaline

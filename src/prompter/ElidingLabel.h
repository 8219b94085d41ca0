#pragma once

#include <QColor>
#include <QLabel>

namespace tessaline {

/// A right-aligned line of text that loses its beginning, with an ellipsis, where it does not fit.
/// Screen readers get the whole text. Main thread only.
class ElidingLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidingLabel(QWidget* parent = nullptr);

    void setColor(const QColor& newColor);
    QColor color() const { return textColor; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor textColor = Qt::white;
};

} // namespace tessaline

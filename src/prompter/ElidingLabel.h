#pragma once

#include <QColor>
#include <QWidget>

namespace tessaline {

/// A right-aligned line of text that loses its beginning, with an ellipsis, where it does not fit.
/// Screen readers get the whole text. Main thread only.
class ElidingLabel : public QWidget {
    Q_OBJECT

public:
    explicit ElidingLabel(QWidget* parent = nullptr);

    void setText(const QString& newText);
    void setColor(const QColor& newColor);

    QString text() const { return content; }
    QColor color() const { return textColor; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString content;
    QColor textColor = Qt::white;
};

} // namespace tessaline

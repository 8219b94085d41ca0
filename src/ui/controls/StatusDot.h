#pragma once

#include <QColor>
#include <QWidget>

namespace tessaline {

/// A round spot whose colour tells a state; screen readers get the state in words.
class StatusDot : public QWidget {
    Q_OBJECT

public:
    /// A spot of so many points across.
    explicit StatusDot(int diameter, QWidget* parent = nullptr);

    /// Shows a state.
    void setStatus(const QColor& color, const QString& spoken);

    QColor color() const { return fill; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor fill = Qt::transparent;
};

} // namespace tessaline

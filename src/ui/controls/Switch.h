#pragma once

#include <QAbstractButton>

class QVariantAnimation;

namespace tessaline {

/// A switch that is on or off. `clicked` tells of changes by the user alone, `toggled` of all.
/// Screen readers see a check box.
class Switch : public QAbstractButton {
    Q_OBJECT

public:
    /// Off at first. The name is for screen readers.
    explicit Switch(const QString& accessibleName, QWidget* parent = nullptr);
    ~Switch() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow(bool on);

    QVariantAnimation* slide;
    double knob = 0.0; ///< where the knob is, from 0 at off to 1 at on
};

} // namespace tessaline

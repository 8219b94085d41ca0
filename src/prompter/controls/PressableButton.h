#pragma once

#include "prompter/controls/TrackedButton.h"

#include <QColor>
#include <QFont>

#include <optional>

namespace tessaline {

/// A borderless button that shows a glyph in white, or an icon, dimmed at rest, bright under the
/// pointer and dark while pressed. The glyph is drawn in the widget's font and centred by its ink;
/// it stays the button's text, also where it is drawn as a shape of our own.
class PressableButton final : public TrackedButton {
    Q_OBJECT

public:
    explicit PressableButton(QWidget* parent = nullptr);

    /// A button with this glyph in the system font; points are logical pixels.
    PressableButton(const QString& glyph, double points, QWidget* parent = nullptr);

    /// Replaces the glyph together with its size and weight.
    void setGlyph(const QString& glyph, double points, QFont::Weight weight = QFont::Normal);

    /// The opacity, from 0 to 1, that the present state asks for.
    double alpha() const;

    /// The fill behind the glyph that the present state asks for, if any.
    std::optional<QColor> backgroundColor() const;

    QSize sizeHint() const override;

    // Opacity of everything drawn: at rest, with the pointer inside, while pressed or disabled.
    // Whoever changes these or the colours on a visible button calls update().
    double normalAlpha = 0.6;
    double hoverAlpha = 1.0;
    double pressedAlpha = 0.3;

    // A rounded fill, at rest and while pressed; a press without a colour of its own keeps the
    // former.
    std::optional<QColor> normalBackgroundColor;
    std::optional<QColor> pressedBackgroundColor;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintGlyph(QPainter& painter) const;
};

} // namespace tessaline

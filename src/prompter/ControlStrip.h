#pragma once

#include "settings/SourceMode.h"
#include "settings/SourceType.h"

#include <QWidget>

class QLabel;

namespace tessaline {

class ElidingLabel;
class IconImage;
class PressableButton;
class TrafficLightCloseButton;

/// The row of controls along the prompter's top edge. It draws nothing of its own and knows no
/// actions: it tells which button was pressed.
class ControlStrip : public QWidget {
    Q_OBJECT

public:
    explicit ControlStrip(QWidget* parent = nullptr);

    /// Centres the controls in a strip of this height, in points, at the widget's top.
    void setStripHeight(double points);

    void showStatistics(const QString& text, const QColor& color);
    void showSourceMode(SourceMode mode);
    void showSource(SourceType source);
    void showCollapsed(bool collapsed);

Q_SIGNALS:
    void quitPressed();
    void minimizePressed();
    void configPressed();
    void autoScrollPressed();
    void pastePressed();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showSourceName(const QString& name, const QColor& color);
    void arrange();

    TrafficLightCloseButton* const quitButton;
    PressableButton* const minimizeButton;
    PressableButton* const configButton;
    PressableButton* const autoScrollButton;
    IconImage* const sourceIconView;
    QLabel* const sourceLabel;
    PressableButton* const pasteButton;
    ElidingLabel* const statsLabel;
    double stripHeight = 24.0;
};

} // namespace tessaline

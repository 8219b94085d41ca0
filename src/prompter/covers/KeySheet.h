#pragma once

#include <QScrollArea>

namespace tessaline {

/// A sheet over the text that tells the prompter's keys, in as many columns as there is room for.
/// Has the keyboard's focus while it is shown; Escape and a click put it away.
class KeySheet : public QScrollArea {
    Q_OBJECT

public:
    /// Hidden at first.
    explicit KeySheet(QWidget* parent);

Q_SIGNALS:
    /// The user wants it put away.
    void dismissed();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void arrange();

    int columns = 0;
};

} // namespace tessaline

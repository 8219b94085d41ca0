#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>

class QWidget;

namespace tessaline {

class ScriptOpening;

/// What the menu of the text has for opening: "Open…", the latest scripts, and where to continue.
class OpeningMenu : public QObject {
public:
    /// Gives the text these entries. Borrows both.
    OpeningMenu(ScriptOpening& opening, QWidget& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refresh();
    void fillLatest();

    ScriptOpening& opening;
    QAction open;
    QAction resume;
    QMenu latest;
};

} // namespace tessaline

#pragma once

#include <QAction>
#include <QIcon>
#include <QList>
#include <QMenu>
#include <QSystemTrayIcon>

#include <functional>
#include <memory>

namespace tessaline {

class RepeatingTimer;
class StatusArea;
class TimerMaker;

/// The program's icon in the menu bar or tray, with its menu. On a desktop without a tray it says
/// so in the log, once, and appears as soon as there is one.
class StatusItem {
public:
    struct Actions {
        std::function<void()> showPrompter;
        std::function<void()> showConfig;
        std::function<void()> showReading;
        std::function<void()> quit;
    };

    /// Shows the item, now or when there is a place for it. Borrows the place and the timers.
    StatusItem(const StatusArea& area, TimerMaker& timers, Actions actions);
    ~StatusItem();
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;

    /// Whether the item has found its place.
    bool isShown() const { return item != nullptr; }

    /// What the menu holds, separators included.
    QList<QAction*> actions() const { return menu.actions(); }

    /// What opens the reading options.
    QAction& readingAction() const { return *reading; }

    const QIcon& icon() const { return image; }

private:
    void fillMenu();
    void waitForArea(TimerMaker& timers);
    void show();

    const StatusArea& area;
    Actions act;
    QIcon image;
    QMenu menu;
    QAction* reading = nullptr;            ///< in the menu
    std::unique_ptr<QSystemTrayIcon> item; ///< after the menu, which it refers to
    std::unique_ptr<RepeatingTimer> areaPollTimer;
};

} // namespace tessaline

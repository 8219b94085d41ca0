#pragma once

#include "platform/TimerMaker.h"

#include <QAction>
#include <QIcon>
#include <QList>
#include <QMenu>
#include <QSystemTrayIcon>

#include <functional>
#include <memory>

class QImage;

namespace tessaline {

/// The program's icon in the menu bar or tray, with its menu. On a desktop without a tray it says
/// so in the log, once, and appears as soon as there is one. Main thread only.
class StatusItem {
public:
    struct Actions {
        std::function<void()> showPrompter;
        std::function<void()> showConfig;
        std::function<void()> quit;
    };

    /// The system's own drawing of a name, or a null image.
    using Symbols = std::function<QImage(const QString& name, const QString& description)>;

    /// Where the item goes.
    struct Area {
        TimerMaker& timers; ///< borrowed
        std::function<bool()> isThere;
    };

    /// Shows the item, now or when there is a place for it.
    StatusItem(const Symbols& symbols, Actions actions, Area area);
    ~StatusItem();
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;

    /// Makes a click with the first button show the prompter, where only the second one opens the
    /// menu.
    void showPrompterOnClick() { showsPrompterOnClick = true; }

    /// Whether the item has found its place.
    bool isShown() const { return item != nullptr; }

    /// What the menu holds, separators included.
    QList<QAction*> actions() const { return menu.actions(); }

    const QIcon& icon() const { return image; }

private:
    void fillMenu();
    void waitForArea();
    void show();

    Actions act;
    Area area;
    QIcon image;
    bool showsPrompterOnClick = false;
    QMenu menu;
    std::unique_ptr<QSystemTrayIcon> item; ///< after the menu, which it refers to
    std::unique_ptr<RepeatingTimer> areaPollTimer;
};

} // namespace tessaline

#pragma once

#include <QAction>
#include <QList>
#include <QMenu>
#include <QSystemTrayIcon>

#include <functional>

class QImage;

namespace tessaline {

/// The program's icon in the menu bar or tray, with its menu. On a desktop without a tray it waits
/// for one and says so in the log. Main thread only.
class StatusItem {
public:
    struct Actions {
        std::function<void()> showPrompter;
        std::function<void()> showConfig;
        std::function<void()> quit;
    };

    /// The system's own drawing of a name, or a null image.
    using Symbols = std::function<QImage(const QString& name, const QString& description)>;

    /// Shows the item.
    StatusItem(const Symbols& symbols, Actions actions);
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;

    /// Makes a click with the first button show the prompter, where only the second one opens the
    /// menu.
    void showPrompterOnClick();

    /// What the menu holds, separators included.
    QList<QAction*> actions() const { return menu.actions(); }

    const QIcon& icon() const { return image; }

private:
    void fillMenu();

    Actions act;
    QIcon image;
    QMenu menu;
    QSystemTrayIcon item; ///< after the menu, which it refers to
};

} // namespace tessaline

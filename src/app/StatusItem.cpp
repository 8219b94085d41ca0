#include "app/StatusItem.h"

#include "app/ShellLog.h"
#include "app/StatusIcon.h"
#include "platform/StatusArea.h"
#include "platform/TimerMaker.h"

#include <QKeySequence>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr TimerMaker::Interval areaPollInterval{2.0};

QAction* addItem(QMenu& menu, const QString& title, const QKeySequence& keys,
                 const std::function<void()>& action) {
    QAction* item = menu.addAction(title);
    item->setShortcut(keys);
    item->setShortcutVisibleInContextMenu(true);
    item->setShortcutContext(Qt::ApplicationShortcut);
    // The titles must not make the system move them into a menu of its own.
    item->setMenuRole(QAction::NoRole);
    QObject::connect(item, &QAction::triggered, &menu, action);
    return item;
}

} // namespace

StatusItem::StatusItem(const StatusArea& statusArea, TimerMaker& timers, Actions actions)
    : area(statusArea), act(std::move(actions)), image(statusIcon(area)) {
    fillMenu();
    if (area.isThere()) {
        show();
    } else {
        waitForArea(timers);
    }
}

StatusItem::~StatusItem() = default;

void StatusItem::fillMenu() {
    addItem(menu, u"Show Tessaline"_s, {}, act.showPrompter);
    menu.addSeparator();
    addItem(menu, u"Settings…"_s, Qt::CTRL | Qt::Key_Comma, act.showConfig);
    reading = addItem(menu, u"Reading…"_s, {}, act.showReading);
    menu.addSeparator();
    addItem(menu, u"Quit Tessaline"_s, Qt::CTRL | Qt::Key_Q, act.quit);
}

void StatusItem::waitForArea(TimerMaker& timers) {
    qCInfo(shellLog, "This desktop shows no tray now: start Tessaline again to get its prompter "
                     "back, or press Ctrl+Q in it to quit");
    areaPollTimer = timers.every(areaPollInterval, [this] {
        if (area.isThere()) show();
    });
}

void StatusItem::show() {
    areaPollTimer.reset();
    item = std::make_unique<QSystemTrayIcon>(image);
    item->setToolTip(statusIconDescription());
    item->setContextMenu(&menu);
    QObject::connect(item.get(), &QSystemTrayIcon::activated, &menu,
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         const bool isClick = reason == QSystemTrayIcon::Trigger;
                         if (isClick && !area.opensMenus()) act.showPrompter();
                     });
    item->show();
}

} // namespace tessaline

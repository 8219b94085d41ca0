#include "app/opening/OpeningMenu.h"

#include "app/opening/ScriptOpening.h"

#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QWidget>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int widestTitle = 320;

/// As a menu shows a text that may have ampersands.
QString plainTitle(const QMenu& menu, const QString& title) {
    return menu.fontMetrics()
        .elidedText(title, Qt::ElideMiddle, widestTitle)
        .replace(u'&', u"&&"_s);
}

} // namespace

OpeningMenu::OpeningMenu(ScriptOpening& owner, QWidget& text)
    : opening(owner), open(u"Open…"_s), latest(u"Latest"_s, &text) {
    open.setShortcut(QKeySequence::Open);
    open.setShortcutVisibleInContextMenu(true);
    connect(&open, &QAction::triggered, this, [this] { opening.choose(); });
    connect(&resume, &QAction::triggered, this, [this] { opening.places().continueReading(); });
    latest.menuAction()->setParent(this);
    text.addActions({&open, latest.menuAction(), &resume});
    text.installEventFilter(this);
    refresh();
}

bool OpeningMenu::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu) refresh();
    return QObject::eventFilter(watched, event);
}

void OpeningMenu::refresh() {
    resume.setText(plainTitle(latest, opening.places().offer()));
    resume.setVisible(opening.places().canContinue());
    fillLatest();
    latest.setEnabled(!opening.latest().all().empty());
}

void OpeningMenu::fillLatest() {
    latest.clear();
    const auto& scripts = opening.latest().all();
    const auto titles = titlesOf(scripts);
    for (std::size_t i = 0; i < scripts.size(); ++i) {
        latest.addAction(plainTitle(latest, titles[i]), this,
                         [this, path = scripts[i].path] { opening.open(path); });
    }
    latest.addSeparator();
    latest.addAction(u"Clear List"_s, this, [this] { opening.latest().clear(); });
}

} // namespace tessaline

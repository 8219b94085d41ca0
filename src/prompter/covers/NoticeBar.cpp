#include "prompter/covers/NoticeBar.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "platform/TimerMaker.h"
#include "prompter/controls/PressableButton.h"
#include "prompter/view/ScriptView.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double points = 12.0;
constexpr int sideMargin = 12;
constexpr int margin = 6;
constexpr int buttonPadding = 8;
constexpr int buttonHeight = 22;
constexpr double lineAlpha = 0.22;
constexpr double buttonAlpha = 0.22;
constexpr double pressedAlpha = 0.4;
constexpr double mostOfTheWidth = 0.56; // for the button

} // namespace

NoticeBar::NoticeBar(TimerMaker& timerMaker, ScriptView& borrowedView)
    : Cover(borrowedView.parentWidget())
    , timers(timerMaker)
    , view(borrowedView)
    , label(makeWrappingLabel({}, systemFont(points), SystemPalette::amber()))
    , button(new PressableButton(this)) {
    setObjectName(u"prompter_notice"_s);
    setAttribute(Qt::WA_NoMousePropagation);
    setCursor(Qt::ArrowCursor);
    label->setParent(this);
    label->setObjectName(u"prompter_noticeText"_s);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    button->setObjectName(u"prompter_noticeButton"_s);
    button->normalAlpha = 1.0;
    button->normalBackgroundColor = SystemPalette::withAlpha(SystemPalette::amber(), buttonAlpha);
    button->pressedBackgroundColor = SystemPalette::withAlpha(SystemPalette::amber(), pressedAlpha);
    connect(button, &QAbstractButton::clicked, this, [this] {
        const auto action = std::exchange(act, nullptr);
        dismiss();
        if (action) action();
    });
    view.installEventFilter(this);
}

NoticeBar::~NoticeBar() = default;

void NoticeBar::tell(const QString& text) {
    act = nullptr;
    button->hide();
    appear(text, tellingSeconds);
}

void NoticeBar::offer(const QString& text, const QString& title, std::function<void()> action) {
    act = std::move(action);
    button->setAccessibleName(title);
    button->show();
    appear(text, offeringSeconds);
}

void NoticeBar::dismiss() {
    ending.reset();
    act = nullptr;
    hide();
}

void NoticeBar::appear(const QString& text, double seconds) {
    if (text.isEmpty()) return dismiss();
    label->setText(text);
    setAccessibleName(text);
    arrange();
    show();
    raise();
    ending = timers.every(TimerMaker::Interval(seconds), [this] { dismiss(); });
    // The keyboard is the text's: Escape is seen on its way there.
    if (QWindow* window = this->window()->windowHandle()) window->installEventFilter(this);
    announce();
}

/// How wide the button is with its title, which is shortened where it leaves the text too little
/// room.
int NoticeBar::fitButton(int room) {
    if (button->isHidden()) return 0;
    const QString title = button->accessibleName();
    const QFontMetrics metrics(systemFont(points, QFont::Medium));
    const int most = int(room * mostOfTheWidth) - 2 * buttonPadding;
    const QString fitting = metrics.elidedText(title, Qt::ElideRight, most);
    button->setGlyph(fitting, points, QFont::Medium);
    button->setToolTip(fitting == title ? QString() : title.toHtmlEscaped());
    return metrics.horizontalAdvance(fitting) + 2 * buttonPadding;
}

/// At the lower edge, or at the upper one where that would cover the line that is read.
void NoticeBar::arrange() {
    const QSize room = view.size();
    const int buttonWidth = fitButton(room.width());
    const int right = room.width() - sideMargin;
    const int textWidth = right - sideMargin - (buttonWidth ? buttonWidth + margin : 0);
    const int textHeight = label->heightForWidth(std::max(textWidth, 1));
    const int height = std::max(textHeight, buttonHeight) + 2 * margin;
    const int lower = room.height() - height;
    const double halfLine = view.caretRect(view.offsetAt({0, view.eyeLine()})).height() / 2;
    const bool coversEyeLine = lower < view.eyeLine() + halfLine;
    setGeometry(view.x(), view.y() + (coversEyeLine ? 0 : lower), room.width(), height);
    label->setGeometry(sideMargin, (height - textHeight) / 2, textWidth, textHeight);
    button->setGeometry(right - buttonWidth, (height - buttonHeight) / 2, buttonWidth,
                        buttonHeight);
}

bool NoticeBar::eventFilter(QObject* watched, QEvent* event) {
    const bool isEscape = event->type() == QEvent::KeyPress &&
                          static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (isEscape && watched == window()->windowHandle() && isVisible()) return dismiss(), true;
    if (event->type() == QEvent::Resize && watched == &view && isVisible()) arrange();
    return false;
}

void NoticeBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), SystemPalette::black);
    const int y = pos().y() > view.y() ? 0 : height() - 1;
    painter.fillRect(0, y, width(), 1, SystemPalette::withAlpha(SystemPalette::amber(), lineAlpha));
}

void NoticeBar::mousePressEvent(QMouseEvent*) {
    dismiss();
}

void NoticeBar::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(&view, event);
}

} // namespace tessaline

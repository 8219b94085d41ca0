#include "ui/Alert.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/IconImage.h"
#include "controls/Labels.h"
#include "ui/AlertIcon.h"
#include "ui/controls/BezelButton.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int iconSize = 48;
constexpr int margin = 20;
constexpr int textWidth = 300;
constexpr int leastButtonWidth = 80;

QIcon iconFor(const AlertContent& content) {
    if (!content.icon.isNull()) return content.icon;
    const bool warns = content.style == AlertContent::Style::warning;
    if (!warns && !QApplication::windowIcon().isNull()) return QApplication::windowIcon();
    return alertIcon(content.style);
}

} // namespace

Alert* Alert::beginSheet(QWidget& window, const AlertContent& content, QWidget* accessory,
                         Completion completion) {
    Alert* before = nullptr;
    for (Alert* other : window.findChildren<Alert*>(Qt::FindDirectChildrenOnly))
        if (!other->answered) before = other;
    auto* alert = new Alert(window, content, accessory);
    alert->completion = std::move(completion);
    if (before) {
        connect(before, &QDialog::finished, alert, &QDialog::open);
    } else {
        alert->open();
    }
    return alert;
}

Alert::Alert(QWidget& window, const AlertContent& content, QWidget* accessory)
    : QDialog(&window, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowCloseButtonHint) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(window.windowTitle());
    setPalette(window.palette());
    setAccessibleName(content.messageText);
    setAccessibleDescription(content.informativeText);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin);
    column->setSizeConstraint(QLayout::SetFixedSize);
    addTexts(content, accessory);
    addButtons(content.buttons);
    connect(this, &QDialog::finished, this, &Alert::finish);
    window.installEventFilter(this);
}

void Alert::addTexts(const AlertContent& content, QWidget* accessory) {
    auto* body = new QHBoxLayout;
    body->setSpacing(16);
    auto* icon = new IconImage(iconFor(content), iconSize);
    icon->setObjectName(u"iconLabel"_s);
    body->addWidget(icon, 0, Qt::AlignTop);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(8);
    QLabel* message =
        makeWrappingLabel(content.messageText, systemFont(13, QFont::Bold), SystemPalette::label);
    QLabel* informative =
        makeWrappingLabel(content.informativeText, systemFont(12), SystemPalette::label);
    message->setObjectName(u"messageLabel"_s);
    informative->setObjectName(u"informativeLabel"_s);
    for (QLabel* label : {message, informative}) {
        label->setFixedWidth(textWidth);
        texts->addWidget(label);
    }
    if (accessory) {
        informative->setBuddy(accessory); // what screen readers call it by
        texts->addWidget(accessory);
    }
    texts->addStretch();
    body->addLayout(texts);
    static_cast<QVBoxLayout*>(layout())->addLayout(body);
}

void Alert::addButtons(const QStringList& titles) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addStretch();
    for (int i = 0; i < titles.size(); ++i) {
        auto* button = new BezelButton(titles[i]);
        button->setObjectName(u"button%1"_s.arg(i));
        button->setMinimumWidth(leastButtonWidth);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, i] { done(i + 1); });
        row->insertWidget(1, button);
        buttons.push_back(button);
    }
    buttons.front()->setDefault(true);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

// Closing without a button, as Escape does, counts as the last one.
void Alert::finish(int result) {
    if (std::exchange(answered, true)) return;
    const int pressed = result > 0 ? result - 1 : int(buttons.size()) - 1;
    if (const auto callback = std::move(completion)) callback(pressed);
}

bool Alert::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest && isVisible()) placeOverWindow();
    return QDialog::event(event);
}

// A click on the blocked window gives that one the keyboard on some desktops; nobody could answer
// with the keys then.
bool Alert::eventFilter(QObject* watched, QEvent* event) {
    const bool windowIsInFront = watched == parent() && event->type() == QEvent::WindowActivate;
    if (windowIsInFront && isVisible()) activateWindow();
    return QDialog::eventFilter(watched, event);
}

void Alert::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    placeOverWindow();
    if (focusWidget() == nullptr) buttons.front()->setFocus(Qt::OtherFocusReason);
}

// Hangs below the window's upper edge, in its middle, as far as the screen lets it. While the
// window is new, the window system may report a passing size, so the lasting one counts.
void Alert::placeOverWindow() {
    const QSize size = layout()->totalSizeHint();
    const QRect window = parentWidget()->frameGeometry();
    const QRect room = screen()->availableGeometry();
    const int x = window.center().x() - size.width() / 2;
    const int lowest = room.bottom() + 1 - size.height();
    const int rightmost = room.right() + 1 - size.width();
    move(std::max(room.left(), std::min(x, rightmost)),
         std::max(room.top(), std::min(window.top() + 40, lowest)));
}

} // namespace tessaline

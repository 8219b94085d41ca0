#include "prompter/covers/KeySheet.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/KeyList.h"

#include <QKeyEvent>
#include <QLayout>

#include <memory>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double groundAlpha = 0.9;
constexpr double deedAlpha = 0.75;
constexpr double fontPoints = 11.0;
constexpr int margin = 12;
constexpr int rowSpacing = 5;

std::unique_ptr<QWidget> makeList(int columns) {
    const QColor amber = SystemPalette::amber();
    auto list = std::make_unique<KeyList>(
        KeyList::Look{systemFont(fontPoints, QFont::DemiBold), amber, systemFont(fontPoints),
                      SystemPalette::withAlpha(amber, deedAlpha), rowSpacing},
        columns);
    list->layout()->setContentsMargins(margin, margin, margin, margin);
    return list;
}

} // namespace

KeySheet::KeySheet(QWidget* parent) : QScrollArea(parent) {
    setAccessibleName(tr("Keys"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    QPalette ground = viewport()->palette();
    ground.setColor(QPalette::Window, SystemPalette::withAlpha(SystemPalette::black, groundAlpha));
    viewport()->setPalette(ground);
    viewport()->setAutoFillBackground(true);
    hide();
}

void KeySheet::resizeEvent(QResizeEvent* event) {
    arrange();
    QScrollArea::resizeEvent(event);
}

void KeySheet::arrange() {
    auto list = makeList(2);
    const int fitting = list->minimumSizeHint().width() <= viewport()->width() ? 2 : 1;
    if (fitting == columns) return;
    columns = fitting;
    setWidget((columns == 2 ? std::move(list) : makeList(1)).release());
}

void KeySheet::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT dismissed();
    } else {
        QScrollArea::keyPressEvent(event);
    }
}

void KeySheet::mousePressEvent(QMouseEvent*) {
    Q_EMIT dismissed();
}

} // namespace tessaline

#include "prompter/covers/KeySheet.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "reading/ReaderKeys.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

#include <algorithm>
#include <memory>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double groundAlpha = 0.9;
constexpr double fontPoints = 12.0;
constexpr double quietAlpha = 0.75;
constexpr int margin = 12;
constexpr int gap = 8;
constexpr int columnGap = 20;
constexpr int rowGap = 5;

QLabel* addLabel(QWidget& parent, QStringView text, const QFont& font, const QColor& color) {
    auto* label = new QLabel(text.toString(), &parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    return label;
}

/// The keys in so many columns, one below the other in each.
std::unique_ptr<QWidget> makeList(int columns) {
    auto list = std::make_unique<QWidget>();
    auto* grid = new QGridLayout(list.get());
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(rowGap);
    const QColor amber = SystemPalette::amber();
    const int rows = (int(readerKeys.size()) + columns - 1) / columns;
    for (int i = 0; i < int(readerKeys.size()); ++i) {
        const auto& [keys, deed] = readerKeys.at(std::size_t(i));
        const int column = i / rows * 3; // the third one is the gap
        grid->addWidget(addLabel(*list, keys, systemFont(fontPoints, QFont::DemiBold), amber),
                        i % rows, column);
        grid->addWidget(addLabel(*list, deed, systemFont(fontPoints),
                                 SystemPalette::withAlpha(amber, quietAlpha)),
                        i % rows, column + 1);
        if (column > 0) grid->setColumnMinimumWidth(column - 1, columnGap - 2 * gap);
    }
    grid->setColumnStretch(columns * 3 - 1, 1);
    grid->setRowStretch(rows, 1);
    list->setAutoFillBackground(false);
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

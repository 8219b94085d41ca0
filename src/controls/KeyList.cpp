#include "controls/KeyList.h"

#include "controls/Labels.h"
#include "reading/ReaderKeys.h"

#include <QGridLayout>

namespace tessaline {

namespace {

constexpr int keysToDeed = 8;
constexpr int columnToColumn = 24;
constexpr int cellsPerColumn = 3; // the keys, their deed, and a gap

} // namespace

KeyList::KeyList(const Look& look, int columns, QWidget* parent) : QWidget(parent) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(keysToDeed);
    grid->setVerticalSpacing(look.rowSpacing);
    const int rows = (int(readerKeys.size()) + columns - 1) / columns;
    for (int i = 0; i < int(readerKeys.size()); ++i) {
        const auto& [keys, deed] = readerKeys.at(std::size_t(i));
        const int cell = i / rows * cellsPerColumn;
        grid->addWidget(makeLabel(keys.toString(), look.keyFont, look.keyColor), i % rows, cell);
        grid->addWidget(makeLabel(deed.toString(), look.deedFont, look.deedColor), i % rows,
                        cell + 1);
        if (cell > 0) grid->setColumnMinimumWidth(cell - 1, columnToColumn - 2 * keysToDeed);
    }
    grid->setColumnStretch(columns * cellsPerColumn - 1, 1);
    grid->setRowStretch(rows, 1);
}

} // namespace tessaline

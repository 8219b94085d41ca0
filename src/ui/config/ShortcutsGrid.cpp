#include "ui/config/ShortcutsGrid.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "platform/PlatformTexts.h"
#include "ui/controls/Rows.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>
#include <iterator>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int columns = 3;
constexpr int keyColumnWidth = 170;
constexpr int spacerHeight = 6;

} // namespace

ShortcutsGrid::ShortcutsGrid(QWidget* parent)
    : QWidget(parent)
    , reachLabel(makeLabel(platformTexts().reachOfGestures, systemFont(10),
                           SystemPalette::tertiaryLabel)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setVerticalSpacing(4);
    grid->setHorizontalSpacing(8);
    const PlatformTexts& texts = platformTexts();
    makeRow(*grid, texts.pasteKeys, u"Paste content"_s);
    // A row without anything in it would get no spacing.
    auto* spacer = new QWidget;
    spacer->setFixedHeight(spacerHeight);
    grid->addWidget(spacer, grid->rowCount(), 0, 1, columns);
    grid->addWidget(reachLabel, grid->rowCount(), 0, 1, columns, Qt::AlignLeading);
    makeRow(*grid, texts.scrollKeys, u"Scroll up or down"_s);
    for (const QString& keys : {texts.scrollClickKeys, texts.twoFingerTapKeys})
        std::ranges::copy(makeRow(*grid, keys, u"Toggle auto-scroll"_s),
                          std::back_inserter(clickRows));
    setColumnWidths(*grid);
}

void ShortcutsGrid::showReach(const AccessibilityTrust::Report& report) {
    reachLabel->setText(report.reachOfGestures);
    for (QWidget* part : clickRows)
        part->setVisible(report.gesturesAreSeen);
}

std::vector<QWidget*> ShortcutsGrid::makeRow(QGridLayout& grid, const QString& key,
                                             const QString& desc) {
    const int row = grid.rowCount();
    QLabel* keyLabel = makeLabel(key, monospacedFont(11, QFont::Medium), SystemPalette::label);
    QLabel* arrow = makeLabel(u"→"_s, systemFont(11), SystemPalette::tertiaryLabel);
    QLabel* description = makeLabel(desc, systemFont(11), SystemPalette::secondaryLabel);
    grid.addWidget(keyLabel, row, 0, Qt::AlignLeading);
    grid.addWidget(arrow, row, 1, Qt::AlignLeading);
    grid.addWidget(description, row, 2, Qt::AlignLeading);
    return {keyLabel, arrow, description};
}

/// The keys' column gives way to the descriptions where fonts run wide.
void ShortcutsGrid::setColumnWidths(QGridLayout& grid) {
    grid.setColumnStretch(columns - 1, 1);
    grid.setColumnMinimumWidth(0, keyColumnWidth);
    if (sizeHint().width() > settingsColumnWidth) grid.setColumnMinimumWidth(0, 0);
}

} // namespace tessaline

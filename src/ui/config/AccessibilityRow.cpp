#include "ui/config/AccessibilityRow.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "platform/PlatformTexts.h"
#include "ui/controls/BezelButton.h"
#include "ui/controls/Rows.h"
#include "ui/controls/StatusDot.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

AccessibilityRow::AccessibilityRow(QWidget* parent)
    : QWidget(parent)
    , accessibilityDot(new StatusDot(10))
    , accessibilityLabel(
          makeLabel(platformTexts().permissionLabel, systemFont(13), SystemPalette::label))
    , accessibilityFixButton(new BezelButton(u"Grant Access"_s, 11))
    , noteLabel(makeWrappingLabel({}, systemFont(11), SystemPalette::secondaryLabel)) {
    setFixedWidth(settingsColumnWidth);
    accessibilityDot->setObjectName(u"accessibilityDot"_s);
    accessibilityLabel->setObjectName(u"accessibilityLabel"_s);
    accessibilityFixButton->setObjectName(u"accessibilityFixButton"_s);
    accessibilityFixButton->setAccessibleName(u"Grant Access for Accessibility"_s);
    noteLabel->setObjectName(u"accessibilityNote"_s);
    connect(accessibilityFixButton, &QPushButton::clicked, this, &AccessibilityRow::fixPressed);
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(accessibilityDot);
    row->addWidget(accessibilityLabel, 1);
    row->addWidget(accessibilityFixButton);
    // As high without the button as with it, so that the window keeps its size.
    row->addStrut(accessibilityFixButton->sizeHint().height());
    QVBoxLayout* column = layOutColumn(*this, 4);
    column->addLayout(row);
    column->addWidget(noteLabel);
}

void AccessibilityRow::updateStatus(const AccessibilityTrust::Report& report) {
    accessibilityDot->setStatus(report.isWhole ? SystemPalette::green : SystemPalette::orange,
                                report.state);
    accessibilityFixButton->setVisible(report.canBeGranted);
    accessibilityLabel->setWordWrap(report.canBeGranted); // where fonts run wide, beside the button
    noteLabel->setText(report.note);
    noteLabel->setVisible(!report.note.isEmpty());
}

} // namespace tessaline

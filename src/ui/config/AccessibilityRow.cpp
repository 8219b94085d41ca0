#include "ui/config/AccessibilityRow.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "ui/controls/BezelButton.h"
#include "ui/controls/Labels.h"
#include "ui/controls/Rows.h"
#include "ui/controls/StatusDot.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

AccessibilityRow::AccessibilityRow(QWidget* parent)
    : QWidget(parent)
    , accessibilityDot(new StatusDot(10))
    , accessibilityLabel(makeLabel(u"Accessibility"_s, systemFont(13), SystemPalette::label))
    , accessibilityFixButton(new BezelButton(u"Grant Access"_s, 11)) {
    setFixedWidth(settingsColumnWidth);
    accessibilityDot->setObjectName(u"accessibilityDot"_s);
    accessibilityLabel->setObjectName(u"accessibilityLabel"_s);
    accessibilityFixButton->setObjectName(u"accessibilityFixButton"_s);
    accessibilityFixButton->setAccessibleName(u"Grant Accessibility access"_s);
    QHBoxLayout* row = layOutRow(*this, 6);
    row->addWidget(accessibilityDot);
    row->addWidget(accessibilityLabel);
    row->addStretch();
    row->addWidget(accessibilityFixButton);
    // As high without the button as with it, so that the window keeps its size.
    setMinimumHeight(accessibilityFixButton->sizeHint().height());
}

void AccessibilityRow::updateStatus(bool trusted) {
    accessibilityDot->setStatus(trusted ? SystemPalette::green : SystemPalette::orange,
                                trusted ? u"Granted"_s : u"Not granted"_s);
    accessibilityLabel->setText(u"Accessibility"_s);
    accessibilityFixButton->setVisible(!trusted);
}

} // namespace tessaline

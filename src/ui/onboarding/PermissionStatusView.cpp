#include "ui/onboarding/PermissionStatusView.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "platform/PlatformTexts.h"
#include "ui/controls/BezelButton.h"
#include "ui/controls/StatusDot.h"

#include <QHBoxLayout>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int margin = 12;
constexpr int leastButtonWidth = 100;

} // namespace

PermissionStatusView::PermissionStatusView(const QString& title, const QString& description,
                                           const AccessibilityTrust::Report& report,
                                           QWidget* parent)
    : Card(parent)
    , statusIndicator(new StatusDot(12))
    , titleLabel(makeLabel(title, systemFont(14, QFont::DemiBold), SystemPalette::label))
    , descriptionLabel(
          makeWrappingLabel(description, systemFont(12), SystemPalette::secondaryLabel))
    , grantButton(new BezelButton(u"Open System Preferences"_s))
    , purpose(description) {
    grantButton->setMinimumWidth(leastButtonWidth);
    statusIndicator->setObjectName(u"statusIndicator"_s);
    titleLabel->setObjectName(u"titleLabel"_s);
    descriptionLabel->setObjectName(u"descriptionLabel"_s);
    grantButton->setObjectName(u"grantButton"_s);
    connect(grantButton, &QPushButton::clicked, this, &PermissionStatusView::grantButtonClicked);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(titleLabel);
    texts->addWidget(descriptionLabel);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin);
    row->addWidget(statusIndicator);
    row->addLayout(texts, 1);
    row->addWidget(grantButton);
    updateStatus(report);
}

void PermissionStatusView::updateStatus(const AccessibilityTrust::Report& report) {
    statusIndicator->setStatus(report.isWhole ? SystemPalette::green : SystemPalette::orange,
                               report.state);
    grantButton->setText(report.isWhole ? platformTexts().permissionGranted : u"Grant Access"_s);
    grantButton->setEnabled(!report.isWhole);
    grantButton->setVisible(report.isWhole || report.canBeGranted);
    descriptionLabel->setText(report.note.isEmpty() ? purpose : purpose + u'\n' + report.note);
}

void PermissionStatusView::grantButtonClicked() {
    if (onGrantButtonClicked) onGrantButtonClicked();
}

} // namespace tessaline

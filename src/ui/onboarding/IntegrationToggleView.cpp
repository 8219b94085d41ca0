#include "ui/onboarding/IntegrationToggleView.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/IconImage.h"
#include "controls/Labels.h"
#include "ui/controls/Switch.h"

#include <QHBoxLayout>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowHeight = 60;
constexpr int iconSize = 24;
constexpr double emojiSize = 20;
constexpr int margin = 12;

QString emoji(SourceType source) {
    switch (source) {
    case SourceType::obsidian:
        return u"📄"_s;
    case SourceType::appleNotes:
        return u"📝"_s;
    case SourceType::clipboard:
        return u"📋"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

IntegrationToggleView::IntegrationToggleView(SourceType type, bool locked, QWidget* parent)
    : Card(parent), sourceType(type), isLocked(locked) {
    setFixedHeight(rowHeight);
}

void IntegrationToggleView::setupUI(bool isEnabled, const QString& statusText,
                                    const QIcon& iconImage) {
    titleLabel =
        makeLabel(displayName(sourceType), systemFont(14, QFont::DemiBold), SystemPalette::label);
    statusLabel = makeLabel(statusText, systemFont(11), SystemPalette::secondaryLabel);
    toggleSwitch = new Switch(displayName(sourceType));
    titleLabel->setObjectName(u"titleLabel"_s);
    statusLabel->setObjectName(u"statusLabel"_s);
    toggleSwitch->setObjectName(u"toggleSwitch"_s);
    toggleSwitch->setChecked(isEnabled);
    toggleSwitch->setEnabled(!isLocked);
    connect(toggleSwitch, &Switch::clicked, this, &IntegrationToggleView::toggleChanged);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addStretch();
    texts->addWidget(titleLabel);
    texts->addWidget(statusLabel);
    texts->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(margin, 0, margin, 0);
    row->setSpacing(margin);
    row->addWidget(createIcon(iconImage));
    row->addLayout(texts, 1);
    row->addWidget(toggleSwitch);
}

void IntegrationToggleView::showState(bool isEnabled, const QString& statusText) {
    toggleSwitch->setChecked(isEnabled);
    statusLabel->setText(statusText);
}

QWidget* IntegrationToggleView::createIcon(const QIcon& image) const {
    if (image.isNull()) {
        QLabel* iconLabel = makeIconLabel(emoji(sourceType), emojiSize, iconSize);
        iconLabel->setObjectName(u"iconLabel"_s);
        return iconLabel;
    }
    auto* iconImageView = new IconImage(image, iconSize);
    iconImageView->setObjectName(u"iconImageView"_s);
    return iconImageView;
}

void IntegrationToggleView::toggleChanged() {
    if (onToggleChanged) onToggleChanged(toggleSwitch->isChecked());
}

} // namespace tessaline

#include "ui/config/DisplaySection.h"

#include "analytics/UsageRecorder.h"
#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "platform/Screens.h"
#include "screens/ScreenManager.h"
#include "screens/SizeSuggestion.h"
#include "settings/AppSettings.h"
#include "ui/config/HorizontalPosition.h"
#include "ui/controls/PointSlider.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Rows.h"
#include "ui/controls/SliderRow.h"

#include <optional>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int sliderWidth = 260;
constexpr quint32 automaticDisplay = 0;

} // namespace

DisplaySection::DisplaySection(AppSettings& shared, const Screens& attached,
                               UsageRecorder& usageRecorder, QWidget* parent)
    : QWidget(parent), settings(shared), screens(attached), recorder(usageRecorder) {
    QVBoxLayout* column = layOutColumn(*this, 10);
    column->addWidget(createScreenRow());

    widthRow = addSliderRow(u"Width"_s, u"widthValueLabel"_s);
    widthSlider = addSlider(u"Width"_s, u"widthSlider"_s);
    widthSlider->setLimits(380, 800);
    widthSlider->setPoints(settings.width());

    heightRow = addSliderRow(u"Height"_s, u"heightValueLabel"_s);
    heightSlider = addSlider(u"Height"_s, u"heightSlider"_s);
    heightSlider->setLimits(100, 800);
    heightSlider->setPoints(settings.height());

    fontRow = addSliderRow(u"Font Size"_s, u"fontValueLabel"_s);
    fontSlider = addSlider(u"Font Size"_s, u"fontSlider"_s);
    fontSlider->setLimits(leastFontSize, mostFontSize);
    fontSlider->setPoints(settings.fontSize());

    xOffsetRow = addSliderRow(u"Position"_s, u"xOffsetLabel"_s);
    xOffsetRow->setValue(u"Center"_s);
    xOffsetSlider = addSlider(u"Position"_s, u"xOffsetSlider"_s);
    xOffsetSlider->setDeadZone(HorizontalPosition::deadZone);
    updatePositionSliderLimits();
    xOffsetSlider->setPoints(settings.xOffset());

    column->addWidget(createScrollRateRow());
}

QWidget* DisplaySection::createScreenRow() {
    auto* row = new QWidget;
    row->setFixedWidth(settingsColumnWidth);
    QHBoxLayout* layout = layOutRow(*row, 8);
    QLabel* name = makeLabel(u"Screen"_s, systemFont(13), SystemPalette::label);
    layout->addWidget(name);
    layout->addStretch();
    screenPopup = new PopupButton(name->text(), 180);
    name->setBuddy(screenPopup);
    screenPopup->setObjectName(u"config_screenPopup"_s);
    connect(screenPopup, &PopupButton::activated, this, &DisplaySection::screenSelectionChanged);
    layout->addWidget(screenPopup);
    return row;
}

QWidget* DisplaySection::createScrollRateRow() {
    auto* row = new QWidget;
    row->setFixedWidth(settingsColumnWidth);
    QHBoxLayout* layout = layOutRow(*row, 8);
    QLabel* name = makeLabel(u"Scroll Speed"_s, systemFont(13), SystemPalette::label);
    layout->addWidget(name);
    layout->addSpacing(10);
    layout->addStretch();
    tickFactorPopup = createTickFactorPopup();
    name->setBuddy(tickFactorPopup);
    layout->addWidget(tickFactorPopup);
    return row;
}

SliderRow* DisplaySection::addSliderRow(const QString& name, const QString& identifier) {
    auto* row = new SliderRow(name, identifier);
    layout()->addWidget(row);
    return row;
}

PointSlider* DisplaySection::addSlider(const QString& name, const QString& identifier) {
    auto* slider = new PointSlider(name, sliderWidth);
    slider->setObjectName(identifier);
    connect(slider, &PointSlider::moved, this, &DisplaySection::configChanged);
    connect(slider, &PointSlider::sliderReleased, this, &DisplaySection::sliderReleased);
    layout()->addWidget(slider);
    layout()->setAlignment(slider, Qt::AlignLeading);
    return slider;
}

PopupButton* DisplaySection::createTickFactorPopup() {
    auto* popup = new PopupButton(u"Scroll Speed"_s, 120);
    popup->setObjectName(u"tickFactorPopup"_s);
    for (const ScrollRate rate : allScrollRates)
        popup->addItem(title(rate));
    popup->setCurrentText(title(settings.scrollRate()));
    connect(popup, &PopupButton::activated, this, &DisplaySection::configChanged);
    return popup;
}

double DisplaySection::computeMaxXOffset() const {
    std::optional<double> width;
    const auto all = screens.all();
    if (screenManager && !all.empty()) {
        width = screenManager->preferredScreen().frame.width;
    } else if (const auto main = screens.mainScreen()) {
        width = main->frame.width;
    } else if (!all.empty()) {
        width = all.front().frame.width;
    }
    return HorizontalPosition::maximumOffset(width, settings.width());
}

void DisplaySection::updatePositionSliderLimits() {
    const double maximum = computeMaxXOffset();
    xOffsetSlider->setLimits(-maximum, maximum);
}

void DisplaySection::updateValueLabels() {
    widthRow->setValue(lengthText(widthSlider->points(), u"px"_s));
    heightRow->setValue(lengthText(heightSlider->points(), u"px"_s));
    fontRow->setValue(lengthText(fontSlider->points(), u"pt"_s));
    updateXOffsetLabel();
}

void DisplaySection::updateXOffsetLabel() {
    xOffsetRow->setValue(HorizontalPosition::text(xOffsetSlider->points()));
}

void DisplaySection::selectScrollRate() {
    tickFactorPopup->setCurrentText(title(settings.scrollRate()));
}

void DisplaySection::configChanged() {
    settings.change([this](PersistedSettings& values) { takeControls(values); });
    updateValueLabels();
    Q_EMIT settingsChanged();
    recorder.trackDisplaySettings(settings.values());
}

void DisplaySection::takeControls(PersistedSettings& values) {
    values.width = widthSlider->points();
    values.height = heightSlider->points();
    values.fontSize = fontSlider->points();
    updatePositionSliderLimits();
    xOffsetSlider->setPoints(HorizontalPosition::snapped(xOffsetSlider->points()));
    values.xOffset = xOffsetSlider->points();
    if (tickFactorPopup->currentIndex() < 0) return;
    const QString selected = tickFactorPopup->currentText();
    values.scrollRate = selected == title(ScrollRate::slow)     ? ScrollRate::slow
                        : selected == title(ScrollRate::medium) ? ScrollRate::medium
                                                                : ScrollRate::fast;
}

void DisplaySection::rebuildScreenPopup() {
    screenPopup->clear();
    screenPopup->addItem(u"Auto"_s, automaticDisplay);
    if (screenManager) {
        for (const Screen& screen : screens.all()) {
            if (screen.id == automaticDisplay) continue;
            screenPopup->addItem(screen.name.isEmpty() ? u"Display"_s : screen.name,
                                 quint32(screen.id));
        }
    }
    selectPreferredScreen();
}

void DisplaySection::selectPreferredScreen() {
    const auto preferred = settings.preferredDisplayID();
    if (!preferred || !screenPopup->selectItemCarrying(quint32(*preferred)))
        screenPopup->setCurrentIndex(0);
}

void DisplaySection::screenSelectionChanged() {
    const quint32 chosen = screenPopup->currentData().toUInt();
    const auto display =
        chosen == automaticDisplay ? std::nullopt : std::optional<std::uint32_t>(chosen);
    if (screenManager) screenManager->preferredDisplayID = display;
    settings.setPreferredDisplayID(display);
    updatePositionSliderLimits();
    updateXOffsetLabel();
    Q_EMIT settingsChanged();
    recorder.trackScreenChanged(screenPopup->currentIndex());
}

void DisplaySection::showSettings() {
    widthSlider->setPoints(settings.width());
    heightSlider->setPoints(settings.height());
    fontSlider->setPoints(settings.fontSize());
    updatePositionSliderLimits();
    xOffsetSlider->setPoints(settings.xOffset());
    selectScrollRate();
    selectPreferredScreen();
    updateValueLabels();
}

} // namespace tessaline

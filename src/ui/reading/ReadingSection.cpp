#include "ui/reading/ReadingSection.h"

#include "settings/ReadingSettings.h"
#include "ui/controls/LabelledRow.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Rows.h"
#include "ui/reading/OptionSlider.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int spacing = 10;
constexpr int popupWidth = 160;

} // namespace

ReadingSection::ReadingSection(ReadingSettings& shared) : settings(shared) {
    layOutColumn(*this, spacing);
}

PopupButton*
ReadingSection::addPopup(const QString& name, const QString& identifier, const QStringList& items,
                         const std::function<void(ReadingOptions& options, int item)>& choose) {
    auto* popup = new PopupButton(name, popupWidth);
    popup->setObjectName(u"reading_%1Popup"_s.arg(identifier));
    popup->addItems(items);
    connect(popup, &PopupButton::activated, this, [this, choose](int item) {
        change([&](ReadingOptions& options) { choose(options, item); });
    });
    addPart(new LabelledRow(name, popup));
    return popup;
}

void ReadingSection::addSlider(
    OptionSlider* slider, const std::function<void(ReadingOptions& options, double number)>& take) {
    connect(slider, &OptionSlider::chosen, this, [this, slider, take] {
        change([&](ReadingOptions& options) { take(options, slider->number()); });
    });
    connect(slider, &OptionSlider::released, this, &ReadingSection::sliderReleased);
    addPart(slider);
}

void ReadingSection::addPart(QWidget* part) {
    layout()->addWidget(part);
}

void ReadingSection::change(const Edit& edit) {
    settings.change(edit);
}

} // namespace tessaline

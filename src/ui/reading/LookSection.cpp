#include "ui/reading/LookSection.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "ui/controls/BezelButton.h"
#include "ui/controls/LabelledRow.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Rows.h"
#include "ui/controls/Switch.h"
#include "ui/reading/FontChoice.h"
#include "ui/reading/OptionSlider.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double percent = 100.0;
constexpr double percentStep = 5.0;

/// The popup's items are in the order of the choices.
int itemFor(Mirroring mirroring) {
    const auto found =
        std::find_if(mirrorings.begin(), mirrorings.end(),
                     [mirroring](const auto& each) { return each.value == mirroring; });
    return int(std::distance(mirrorings.begin(), found));
}

} // namespace

LookSection::LookSection(ReadingSettings& shared, LookHelp lookHelp)
    : ReadingSection(shared), help(std::move(lookHelp)) {
    mirrorPopup = addPopup(u"Mirror"_s, u"mirror"_s,
                           {u"Off"_s, u"Left to Right"_s, u"Upside Down"_s, u"Both"_s},
                           [](ReadingOptions& options, int item) {
                               options.mirror = mirrorings[std::size_t(item)].value;
                           });
    addGround();
    addClickThrough();
    addFont();
    addDistance();
}

void LookSection::addGround() {
    opacitySlider = new OptionSlider(u"Opacity of the Ground"_s, u"opacity"_s,
                                     {.least = percent * ReadingOptions::leastGroundOpacity,
                                      .most = percent,
                                      .step = percentStep});
    addSlider(opacitySlider, [](ReadingOptions& options, double number) {
        options.groundOpacity = number / percent;
    });
    compositorHint =
        addHint(u"compositor"_s, u"To see through the ground takes a compositing manager, and none "
                                 u"runs on this desktop: it stays black."_s);
}

void LookSection::addClickThrough() {
    clickThroughSwitch = new Switch(u"Click Through the Text"_s);
    clickThroughSwitch->setObjectName(u"reading_clickThroughSwitch"_s);
    connect(clickThroughSwitch, &Switch::clicked, this, [this](bool on) {
        change([on](ReadingOptions& options) { options.clickThrough = on; });
    });
    addPart(new LabelledRow(u"Click Through the Text"_s, clickThroughSwitch));
    mouseHint =
        addHint(u"mouse"_s, u"This display server cannot do that: the text keeps the mouse."_s);
}

void LookSection::addFont() {
    fontChoice = new FontChoice;
    connect(fontChoice, &FontChoice::chosen, this, [this](const QString& family) {
        change([&family](ReadingOptions& options) { options.fontFamily = family; });
    });
    addPart(fontChoice);
    spacingSlider = new OptionSlider(u"Line Spacing"_s, u"spacing"_s,
                                     {.least = percent * ReadingOptions::leastLineSpacing,
                                      .most = percent * ReadingOptions::mostLineSpacing,
                                      .step = percentStep});
    addSlider(spacingSlider, [](ReadingOptions& options, double number) {
        options.lineSpacing = number / percent;
    });
}

void LookSection::addDistance() {
    distanceSlider = new OptionSlider(u"Reading Distance"_s, u"distance"_s,
                                      {.least = ReadingOptions::leastReadingDistance,
                                       .most = ReadingOptions::mostReadingDistance,
                                       .step = ReadingOptions::readingDistanceStep});
    addSlider(distanceSlider, [](ReadingOptions& options, double centimetres) {
        options.readingDistance = centimetres;
    });
    auto* button = new BezelButton(u"Suggest"_s);
    button->setObjectName(u"reading_suggestButton"_s);
    button->setAccessibleName(u"Suggest a font size for this distance"_s);
    connect(button, &BezelButton::clicked, this, [this] {
        suggestedFor = distanceSlider->number();
        suggestionLabel->setText(help.takeSuggestedSize());
        suggestionLabel->show();
    });
    addPart(new LabelledRow(u"Font Size for It"_s, button));
    suggestionLabel = addHint(u"suggestion"_s, {});
    suggestionLabel->hide();
}

QLabel* LookSection::addHint(const QString& identifier, const QString& text) {
    auto* label = makeWrappingLabel(text, systemFont(11), SystemPalette::secondaryLabel);
    label->setObjectName(u"reading_%1Hint"_s.arg(identifier));
    addPart(label);
    return label;
}

void LookSection::showOptions(const ReadingOptions& options) {
    mirrorPopup->setCurrentIndex(itemFor(options.mirror));
    const double opacity = percent * options.groundOpacity;
    opacitySlider->show(opacity, u"%1 %"_s.arg(std::lround(opacity)));
    compositorHint->setVisible(options.groundOpacity < 1.0 && !help.showsTranslucency());
    clickThroughSwitch->setChecked(options.clickThrough);
    mouseHint->setVisible(options.clickThrough && !help.letsMouseThrough());
    fontChoice->show(options.fontFamily);
    spacingSlider->show(percent * options.lineSpacing, QString::number(options.lineSpacing));
    distanceSlider->show(options.readingDistance, u"%1 cm"_s.arg(options.readingDistance));
    if (options.readingDistance != suggestedFor) suggestionLabel->hide();
}

} // namespace tessaline

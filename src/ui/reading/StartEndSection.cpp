#include "ui/reading/StartEndSection.h"

#include "ui/controls/LabelledRow.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Switch.h"
#include "ui/reading/OptionSlider.h"

#include <algorithm>
#include <iterator>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The popup's items are in the order of the choices.
int itemFor(ScriptEnd end) {
    const auto found = std::find_if(scriptEnds.begin(), scriptEnds.end(),
                                    [end](const auto& each) { return each.value == end; });
    return int(std::distance(scriptEnds.begin(), found));
}

QString countdownText(double seconds) {
    return seconds == 0.0 ? u"Off"_s : u"%1 s"_s.arg(seconds);
}

} // namespace

StartEndSection::StartEndSection(ReadingSettings& shared) : ReadingSection(shared) {
    countdownSlider = new OptionSlider(u"Countdown"_s, u"countdown"_s,
                                       {.most = ReadingOptions::mostCountdownSeconds});
    addSlider(countdownSlider,
              [](ReadingOptions& options, double seconds) { options.countdownSeconds = seconds; });
    endPopup = addPopup(u"At the End"_s, u"atEnd"_s, {u"Stand"_s, u"Stop"_s, u"Go Round"_s},
                        [](ReadingOptions& options, int item) {
                            options.atEnd = scriptEnds[std::size_t(item)].value;
                        });
    glideSwitch = new Switch(u"Ease Jumps"_s);
    glideSwitch->setObjectName(u"reading_glideSwitch"_s);
    connect(glideSwitch, &Switch::clicked, this,
            [this](bool on) { change([on](ReadingOptions& options) { options.glide = on; }); });
    addPart(new LabelledRow(u"Ease Jumps"_s, glideSwitch));
}

void StartEndSection::showOptions(const ReadingOptions& options) {
    countdownSlider->show(options.countdownSeconds, countdownText(options.countdownSeconds));
    endPopup->setCurrentIndex(itemFor(options.atEnd));
    glideSwitch->setChecked(options.glide);
}

} // namespace tessaline

#pragma once

#include "ui/reading/ReadingSection.h"

namespace tessaline {

class Switch;

/// What happens before the text starts to move, at its end, and at jumps.
class StartEndSection : public ReadingSection {
public:
    explicit StartEndSection(ReadingSettings& shared);

    void showOptions(const ReadingOptions& options) override;

private:
    OptionSlider* countdownSlider = nullptr;
    PopupButton* endPopup = nullptr;
    Switch* glideSwitch = nullptr;
};

} // namespace tessaline

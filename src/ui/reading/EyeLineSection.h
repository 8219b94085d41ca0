#pragma once

#include "ui/reading/ReadingSection.h"

namespace tessaline {

/// Where the line that is being read is, and what marks it.
class EyeLineSection : public ReadingSection {
public:
    explicit EyeLineSection(ReadingSettings& shared);

    void showOptions(const ReadingOptions& options) override;

private:
    PopupButton* placePopup = nullptr;
    OptionSlider* heightSlider = nullptr;
    PopupButton* guidePopup = nullptr;
};

} // namespace tessaline

#pragma once

#include "ui/reading/ReadingSection.h"

class QLabel;

namespace tessaline {

class FontChoice;
class Switch;

/// What the section has to ask of the program.
struct LookHelp {
    /// Whether something is seen through a ground that is not opaque.
    std::function<bool()> showsTranslucency;
    /// Whether the mouse can go through the text.
    std::function<bool()> letsMouseThrough;
    /// Gives the text the size that is right for the reading distance, and says which.
    std::function<QString()> takeSuggestedSize;
};

/// How the text looks: turned over or not, its ground, its font.
class LookSection : public ReadingSection {
public:
    LookSection(ReadingSettings& shared, LookHelp help);

    void showOptions(const ReadingOptions& options) override;

private:
    void addGround();
    void addClickThrough();
    void addFont();
    void addDistance();
    QLabel* addHint(const QString& identifier, const QString& text);

    const LookHelp help;
    PopupButton* mirrorPopup = nullptr;
    OptionSlider* opacitySlider = nullptr;
    QLabel* compositorHint = nullptr;
    Switch* clickThroughSwitch = nullptr;
    QLabel* mouseHint = nullptr;
    FontChoice* fontChoice = nullptr;
    OptionSlider* spacingSlider = nullptr;
    OptionSlider* distanceSlider = nullptr;
    QLabel* suggestionLabel = nullptr;
    double suggestedFor = 0.0; ///< the distance; 0: nothing was suggested
};

} // namespace tessaline

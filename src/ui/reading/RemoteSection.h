#pragma once

#include "ui/reading/ReadingSection.h"

namespace tessaline {

class Switch;

/// What else may drive the prompter: the media keys.
class RemoteSection : public ReadingSection {
public:
    explicit RemoteSection(ReadingSettings& shared);

    void showOptions(const ReadingOptions& options) override;

private:
    Switch* mediaKeysSwitch;
};

} // namespace tessaline

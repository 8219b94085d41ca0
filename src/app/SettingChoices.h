#pragma once

#include "settings/ScrollRate.h"
#include "settings/SourceType.h"

#include <QString>

#include <functional>

namespace tessaline {

class AppSettings;
class UsageRecorder;

/// What is chosen otherwise than in the settings window: by keys, commands and media keys. Each
/// changes one setting and no other, saves once, announces it and records it.
class SettingChoices {
public:
    /// What has to follow a choice.
    struct Effects {
        std::function<void()> looksChanged;
        std::function<void(SourceType source)> sourceChosen;
    };

    /// Borrows both.
    SettingChoices(AppSettings& settings, UsageRecorder& recorder, Effects effects);

    void setScrollSpeed(double speed); ///< within its limits
    void setScrollRate(ScrollRate rate);
    bool setSource(SourceType source); ///< false, and no change: it is not enabled
    void setFontSize(double points);   ///< within its limits

private:
    AppSettings& settings;
    UsageRecorder& recorder;
    const Effects effects;
};

} // namespace tessaline

#pragma once

#include "settings/ReadingSettings.h"
#include "ui/SideWindow.h"
#include "ui/reading/LookSection.h"
#include "ui/reading/PageSection.h"

#include <QTime>

#include <functional>
#include <vector>

namespace tessaline {

class ReadingSection;

/// The window of the reading options. Every change is in force and saved at once; what others
/// change is shown.
class ReadingWindow : public SideWindow {
    Q_OBJECT

public:
    /// Builds the window; shows nothing yet. Borrows the settings; `now` tells the time on the
    /// clock.
    ReadingWindow(ReadingSettings& settings, const LookHelp& help, const PageHelp& pageHelp = {},
                  const std::function<QTime()>& now = &QTime::currentTime);

    /// Shows what the options are now. The window has its right size afterwards.
    void refresh();

    /// The same without a look at the size.
    void showOptions();

private:
    QWidget* createContent(const LookHelp& help, const PageHelp& pageHelp,
                           const std::function<QTime()>& now);

    ReadingSettings& settings;
    ReadingSettings::Observation observation;
    std::vector<ReadingSection*> sections;
};

} // namespace tessaline

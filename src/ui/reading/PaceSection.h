#pragma once

#include "ui/controls/Field.h"
#include "ui/reading/ReadingSection.h"

#include <QDoubleSpinBox>
#include <QTimeEdit>

#include <functional>

class QLabel;

namespace tessaline {

/// What decides how fast the text passes.
class PaceSection : public ReadingSection {
public:
    /// `now` tells the time on the clock.
    PaceSection(ReadingSettings& shared, std::function<QTime()> now);

    void showOptions(const ReadingOptions& options) override;

private:
    void choosePace(ReadingOptions& options, int item) const;
    void addMinutes();
    void addTime();
    void showTomorrow(const ReadingOptions& options);

    const std::function<QTime()> now;
    PopupButton* pacePopup = nullptr;
    OptionSlider* wordsSlider = nullptr;
    Field<QDoubleSpinBox>* minutesField = nullptr;
    Field<QTimeEdit>* timeField = nullptr;
    QWidget* minutesRow = nullptr;
    QWidget* timeRow = nullptr;
    QLabel* tomorrowLabel = nullptr;
};

} // namespace tessaline

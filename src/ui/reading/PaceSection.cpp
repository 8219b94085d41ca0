#include "ui/reading/PaceSection.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "ui/controls/LabelledRow.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Rows.h"
#include "ui/reading/OptionSlider.h"

#include <QSignalBlocker>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int fieldWidth = 100;
constexpr int secondsPerMinute = 60;

/// The items of the popup, in their order.
enum PaceItem { speedItem, wordsItem, minutesItem, timeItem };

PaceItem itemFor(const ReadingOptions& options) {
    if (options.pace == PaceMode::speed) return speedItem;
    if (options.pace == PaceMode::words) return wordsItem;
    return options.finishAt ? timeItem : minutesItem;
}

TimeOfDay timeOfDay(QTime time) {
    return {QTime(0, 0).secsTo(time) / secondsPerMinute};
}

QTime clockTime(TimeOfDay time) {
    return QTime(0, 0).addSecs(time.minutes * secondsPerMinute);
}

} // namespace

PaceSection::PaceSection(ReadingSettings& shared, std::function<QTime()> clock)
    : ReadingSection(shared), now(std::move(clock)) {
    pacePopup =
        addPopup(u"Pace"_s, u"pace"_s,
                 {u"Speed"_s, u"Words a Minute"_s, u"Finish in Minutes"_s, u"Finish at a Time"_s},
                 [this](ReadingOptions& options, int item) { choosePace(options, item); });
    wordsSlider = new OptionSlider(u"Words a Minute"_s, u"words"_s,
                                   {.least = ReadingOptions::leastWordsPerMinute,
                                    .most = ReadingOptions::mostWordsPerMinute,
                                    .step = ReadingOptions::wordsPerMinuteStep});
    addSlider(wordsSlider,
              [](ReadingOptions& options, double words) { options.wordsPerMinute = words; });
    addMinutes();
    addTime();
}

void PaceSection::addMinutes() {
    minutesField = new Field<QDoubleSpinBox>(u"Minutes"_s, fieldWidth);
    minutesField->setObjectName(u"reading_minutesField"_s);
    minutesField->setRange(ReadingOptions::leastFinishMinutes, ReadingOptions::mostFinishMinutes);
    minutesField->setSingleStep(0.5);
    minutesField->setDecimals(1);
    connect(minutesField, &QDoubleSpinBox::valueChanged, this, [this](double minutes) {
        change([minutes](ReadingOptions& options) { options.finishMinutes = minutes; });
    });
    minutesRow = new LabelledRow(u"Minutes"_s, minutesField);
    addPart(minutesRow);
}

void PaceSection::addTime() {
    timeField = new Field<QTimeEdit>(u"Time"_s, fieldWidth);
    timeField->setObjectName(u"reading_timeField"_s);
    timeField->setDisplayFormat(u"HH:mm"_s);
    timeField->setWrapping(true);
    connect(timeField, &QTimeEdit::timeChanged, this, [this](QTime time) {
        change([time](ReadingOptions& options) { options.finishAt = timeOfDay(time); });
    });
    timeRow = new LabelledRow(u"Time"_s, timeField);
    addPart(timeRow);
    tomorrowLabel = makeLabel(u"This time has passed today: it means tomorrow."_s, systemFont(11),
                              SystemPalette::secondaryLabel);
    tomorrowLabel->setObjectName(u"reading_tomorrowLabel"_s);
    addPart(tomorrowLabel);
}

void PaceSection::choosePace(ReadingOptions& options, int item) const {
    constexpr PaceMode modes[] = {PaceMode::speed, PaceMode::words, PaceMode::finish,
                                  PaceMode::finish};
    options.pace = modes[item];
    if (item == minutesItem) options.finishAt.reset();
    if (item == timeItem && !options.finishAt) {
        const int seconds = int(options.finishMinutes * secondsPerMinute);
        options.finishAt = timeOfDay(now().addSecs(seconds));
    }
}

void PaceSection::showOptions(const ReadingOptions& options) {
    const PaceItem item = itemFor(options);
    pacePopup->setCurrentIndex(item);
    wordsSlider->setVisible(item == wordsItem);
    wordsSlider->show(options.wordsPerMinute, QString::number(options.wordsPerMinute));
    const QSignalBlocker minutesSilence(minutesField);
    minutesField->setValue(options.finishMinutes);
    minutesRow->setVisible(item == minutesItem);
    const QSignalBlocker timeSilence(timeField);
    if (options.finishAt) timeField->setTime(clockTime(*options.finishAt));
    timeRow->setVisible(item == timeItem);
    showTomorrow(options);
}

void PaceSection::showTomorrow(const ReadingOptions& options) {
    tomorrowLabel->setVisible(itemFor(options) == timeItem && hasPassed(*options.finishAt, now()));
}

} // namespace tessaline

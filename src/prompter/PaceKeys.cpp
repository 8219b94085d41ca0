#include "prompter/PaceKeys.h"

#include "settings/PaceStep.h"
#include "settings/ReadingSettings.h"

#include <QKeyEvent>

#include <optional>

namespace tessaline {

namespace {

std::optional<PaceStep> stepOf(const QKeyEvent& event) {
    const bool isPlain = !(event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (isPlain && event.key() == Qt::Key_Plus) return PaceStep::faster;
    if (isPlain && event.key() == Qt::Key_Minus) return PaceStep::slower;
    return std::nullopt;
}

} // namespace

bool stepPaceByKey(const QKeyEvent& event, ReadingSettings& settings) {
    const auto step = stepOf(event);
    if (!step || settings.values().pace == PaceMode::speed) return false;
    settings.change(
        [step](ReadingOptions& options) { stepPace(options, *step, QTime::currentTime()); });
    return true;
}

} // namespace tessaline

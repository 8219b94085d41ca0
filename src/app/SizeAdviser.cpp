#include "app/SizeAdviser.h"

#include "prompter/PrompterLook.h"
#include "prompter/PrompterWindow.h"
#include "prompter/layout/FormatTable.h"
#include "settings/ReadingSettings.h"

#include <QFontMetricsF>
#include <QScreen>

namespace tessaline {

namespace {

/// Measured in a large size, as Qt measures in whole pixels.
double capitalShare(const QString& family) {
    constexpr double size = 200.0;
    constexpr double usual = 0.7;
    const double height = QFontMetricsF(resolvedFont({.size = size}, family)).capHeight();
    return height > 0.0 ? height / size : usual;
}

} // namespace

SizeSuggestion SizeAdviser::suggestion() const {
    const QScreen& screen = *prompter.screen();
    return SizeSuggestion::of({.millimetres = screen.physicalSize(),
                               .points = screen.geometry().size(),
                               .pixelsPerPoint = screen.devicePixelRatio()},
                              reading.values().readingDistance,
                              capitalShare(prompter.look().family()));
}

void SizeAdviser::tell(PrompterStatus& status) const {
    status.suggestion = suggestion().text();
}

} // namespace tessaline

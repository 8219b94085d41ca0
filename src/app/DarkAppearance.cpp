#include "app/DarkAppearance.h"

#include "appearance/DarkPalette.h"
#include "platform/NativeLook.h"

#include <QApplication>
#include <QToolTip>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

void applyDarkAppearance(NativeLook& look) {
    if (look.showDark()) return;
    QApplication::setStyle(u"fusion"_s);
    const QPalette palette = darkPalette();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace tessaline

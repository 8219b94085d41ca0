#include "app/DarkAppearance.h"

#include "prompter/controls/SystemPalette.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QColor windowColor{36, 36, 38};
constexpr QColor fieldColor{28, 28, 30};
constexpr QColor buttonColor{58, 58, 60};

QPalette darkPalette() {
    QPalette palette(buttonColor, windowColor);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        palette.setColor(role, SystemPalette::label);
        palette.setColor(QPalette::Disabled, role, SystemPalette::tertiaryLabel);
    }
    palette.setColor(QPalette::Base, fieldColor);
    palette.setColor(QPalette::AlternateBase, windowColor);
    palette.setColor(QPalette::ToolTipBase, buttonColor);
    palette.setColor(QPalette::PlaceholderText, SystemPalette::secondaryLabel);
    palette.setColor(QPalette::Highlight, SystemPalette::blue);
    palette.setColor(QPalette::HighlightedText, SystemPalette::white);
    palette.setColor(QPalette::Link, SystemPalette::blue);
    return palette;
}

} // namespace

void applyDarkAppearance() {
    QApplication::setStyle(u"fusion"_s);
    const QPalette palette = darkPalette();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace tessaline

#include "appearance/DarkPalette.h"

#include "appearance/SystemPalette.h"

namespace tessaline {

QPalette darkPalette() {
    QPalette palette(SystemPalette::button, SystemPalette::windowBackground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        palette.setColor(role, SystemPalette::label);
        palette.setColor(QPalette::Disabled, role, SystemPalette::tertiaryLabel);
    }
    palette.setColor(QPalette::Base, SystemPalette::controlBackground);
    palette.setColor(QPalette::AlternateBase, SystemPalette::windowBackground);
    palette.setColor(QPalette::ToolTipBase, SystemPalette::button);
    palette.setColor(QPalette::PlaceholderText, SystemPalette::secondaryLabel);
    palette.setColor(QPalette::Highlight, SystemPalette::selection);
    palette.setColor(QPalette::HighlightedText, SystemPalette::white);
    palette.setColor(QPalette::Link, SystemPalette::blue);
    return palette;
}

} // namespace tessaline

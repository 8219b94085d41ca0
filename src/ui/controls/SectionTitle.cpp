#include "ui/controls/SectionTitle.h"

#include "appearance/PointFont.h"

namespace tessaline {

SectionTitle::SectionTitle(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setFont(systemFont(13, QFont::DemiBold));
}

} // namespace tessaline

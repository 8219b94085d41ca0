#pragma once

#include <QLabel>

namespace tessaline {

/// The heading of a group of controls.
class SectionTitle : public QLabel {
public:
    explicit SectionTitle(const QString& text, QWidget* parent = nullptr);
};

} // namespace tessaline

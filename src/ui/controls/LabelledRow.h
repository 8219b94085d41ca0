#pragma once

#include <QWidget>

namespace tessaline {

/// A name at the left and the control that it belongs to at the right, as wide as the settings
/// window's column.
class LabelledRow : public QWidget {
public:
    /// Takes ownership of the control.
    LabelledRow(const QString& name, QWidget* control, QWidget* parent = nullptr);
};

} // namespace tessaline

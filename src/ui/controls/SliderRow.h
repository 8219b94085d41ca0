#pragma once

#include <QLabel>
#include <QWidget>

namespace tessaline {

/// A name at the left and, in quieter colour, the present value at the right.
class SliderRow : public QWidget {
public:
    /// A row of the settings window's width, with an empty value.
    explicit SliderRow(const QString& name, QWidget* parent = nullptr);

    QLabel* const valueLabel;
};

} // namespace tessaline

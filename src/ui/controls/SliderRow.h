#pragma once

#include <QWidget>

class QLabel;

namespace tessaline {

/// A name at the left and, in quieter colour, the present value at the right.
class SliderRow : public QWidget {
public:
    /// A row of the settings window's width, with an empty value whose label has the object name
    /// `valueName`.
    SliderRow(const QString& name, const QString& valueName, QWidget* parent = nullptr);

    void setValue(const QString& text);

private:
    QLabel* const valueLabel;
};

} // namespace tessaline

#pragma once

#include <QWidget>

namespace tessaline {

/// A thin horizontal line between groups of controls.
class Separator : public QWidget {
public:
    /// A line of so many points.
    explicit Separator(int width, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessaline

#pragma once

#include "platform/AccessibilityTrust.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

namespace tessaline {

/// Lists the keyboard and mouse shortcuts in the width of the settings' column.
class ShortcutsGrid : public QWidget {
    Q_OBJECT

public:
    explicit ShortcutsGrid(QWidget* parent = nullptr);

    /// Says over which windows those of the wheel and the buttons work, and lists those that do.
    void showReach(const AccessibilityTrust::Report& report);

private:
    std::vector<QWidget*> makeRow(QGridLayout& grid, const QString& key, const QString& desc);
    void setColumnWidths(QGridLayout& grid);

    QLabel* reachLabel;
    std::vector<QWidget*> clickRows;
};

} // namespace tessaline

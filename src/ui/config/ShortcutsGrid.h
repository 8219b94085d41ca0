#pragma once

#include <QWidget>

class QGridLayout;

namespace tessaline {

/// Lists the keyboard and mouse shortcuts in the width of the settings' column.
class ShortcutsGrid : public QWidget {
    Q_OBJECT

public:
    explicit ShortcutsGrid(QWidget* parent = nullptr);

private:
    void makeRow(QGridLayout& grid, const QString& key, const QString& desc);
    void setColumnWidths(QGridLayout& grid);
};

} // namespace tessaline

#pragma once

#include <QWidget>

class QGridLayout;

namespace tessaline {

/// Lists the keyboard and mouse shortcuts. Main thread only.
class ShortcutsGrid : public QWidget {
    Q_OBJECT

public:
    explicit ShortcutsGrid(QWidget* parent = nullptr);

private:
    void makeRow(QGridLayout& grid, const QString& key, const QString& desc);
};

} // namespace tessaline

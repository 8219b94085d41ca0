#pragma once

#include <QColor>
#include <QFont>
#include <QWidget>

namespace tessaline {

/// Lists the prompter's keys and what they do, in columns of equal length.
class KeyList : public QWidget {
public:
    struct Look {
        QFont keyFont;
        QColor keyColor;
        QFont deedFont;
        QColor deedColor;
        int rowSpacing = 4;
    };

    KeyList(const Look& look, int columns, QWidget* parent = nullptr);
};

} // namespace tessaline

#pragma once

#include <QWidget>

#include <optional>

class QLabel;

namespace tessaline {

class NamePopup;

/// A choice among the fonts that are installed, the desktop's first. They are looked for when it is
/// shown for the first time.
class FontChoice : public QWidget {
    Q_OBJECT

public:
    FontChoice();

    /// Shows which one is wanted: none is the desktop's. One that is not installed is told, and
    /// stays among the items.
    void show(const std::optional<QString>& family);

Q_SIGNALS:
    /// The user chose one; empty: the desktop's.
    void chosen(const QString& family);

private:
    void addFamilies();
    void select(const QString& family);

    NamePopup* const popup;
    QLabel* const hint;
    QLabel* const missing;
};

} // namespace tessaline

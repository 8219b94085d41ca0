#pragma once

#include "settings/ReadingOptions.h"

#include <QWidget>

#include <functional>

namespace tessaline {

class OptionSlider;
class PopupButton;
class ReadingSettings;

/// Some controls of the window of the reading options. What the user does with one is saved at
/// once; what the options are then, the window shows in all sections.
class ReadingSection : public QWidget {
    Q_OBJECT

public:
    /// Borrows the settings.
    explicit ReadingSection(ReadingSettings& shared);

    /// Shows the options, and of the controls those that they use.
    virtual void showOptions(const ReadingOptions& options) = 0;

Q_SIGNALS:
    /// The user let a slider go.
    void sliderReleased();

protected:
    using Edit = std::function<void(ReadingOptions& options)>;

    /// Adds a popup in a row with its name. `choose` makes of the options what the chosen item
    /// says, which is counted from 0.
    PopupButton* addPopup(const QString& name, const QString& identifier, const QStringList& items,
                          const std::function<void(ReadingOptions& options, int item)>& choose);

    /// Adds a slider; `take` puts its number into the options.
    void addSlider(OptionSlider* slider,
                   const std::function<void(ReadingOptions& options, double number)>& take);

    /// Adds any other part below the last one.
    void addPart(QWidget* part);

    void change(const Edit& edit);

private:
    ReadingSettings& settings;
};

} // namespace tessaline

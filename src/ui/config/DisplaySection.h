#pragma once

#include <QWidget>

namespace tessaline {

class AppSettings;
class PointSlider;
class PopupButton;
class ScreenManager;
class Screens;
class SliderRow;
class UsageRecorder;
struct PersistedSettings;

/// The controls for where and how large the prompter is and how fast it scrolls. Every change goes
/// into the settings and is saved and announced at once.
class DisplaySection : public QWidget {
    Q_OBJECT

public:
    /// Borrows everything.
    DisplaySection(AppSettings& settings, const Screens& screens, UsageRecorder& recorder,
                   QWidget* parent = nullptr);

    /// The displays to choose from; null: only the automatic choice is offered. Borrowed.
    void setScreenManager(ScreenManager* manager) { screenManager = manager; }

    /// Shows the settings' sizes, position, scroll rate and, if it is attached, display.
    void showSettings();

    /// Lists the displays that are attached now and selects the preferred one.
    void rebuildScreenPopup();

    /// Writes the sliders' values beside their names.
    void updateValueLabels();

Q_SIGNALS:
    /// After every saved change, before it is recorded.
    void settingsChanged();
    /// The user let a slider go.
    void sliderReleased();

private:
    QWidget* createScreenRow();
    QWidget* createScrollRateRow();
    SliderRow* addSliderRow(const QString& name, const QString& identifier);
    PointSlider* addSlider(const QString& name, const QString& identifier);
    PopupButton* createTickFactorPopup();
    double computeMaxXOffset() const;
    void updatePositionSliderLimits();
    void updateXOffsetLabel();
    void selectScrollRate();
    void selectPreferredScreen();
    void configChanged();
    void takeControls(PersistedSettings& values);
    void screenSelectionChanged();

    PopupButton* screenPopup = nullptr;
    PointSlider* widthSlider = nullptr;
    PointSlider* heightSlider = nullptr;
    PointSlider* fontSlider = nullptr;
    PointSlider* xOffsetSlider = nullptr;
    PopupButton* tickFactorPopup = nullptr;
    SliderRow* widthRow = nullptr;
    SliderRow* heightRow = nullptr;
    SliderRow* fontRow = nullptr;
    SliderRow* xOffsetRow = nullptr;
    AppSettings& settings;
    const Screens& screens;
    UsageRecorder& recorder;
    ScreenManager* screenManager = nullptr;
};

} // namespace tessaline

#pragma once

#include "platform/Lifetime.h"
#include "platform/Screen.h"
#include "prompter/ResizeAnimation.h"
#include "reading/PrompterStatus.h"
#include "settings/AppSettings.h"
#include "settings/ReadingSettings.h"
#include "settings/SourceMode.h"
#include "settings/SourceType.h"

#include <QRegion>
#include <QWidget>

#include <memory>
#include <optional>

namespace tessaline {

class ControlStrip;
class NoticeBar;
class PrompterContent;
class PrompterLook;
class ReadingConductor;
class ReadingSession;
class RepeatingTimer;
class ScreenManager;
class ScriptView;
class TextCovers;
struct Platform;
struct PrompterKey;

/// The teleprompter: a borderless black window that hangs from the top edge of a screen, with a
/// strip of controls above the text.
class PrompterWindow : public QWidget {
    Q_OBJECT

public:
    /// Builds the window, places it on the main screen and starts auto-scroll if the settings say
    /// so; shows nothing yet. Follows the settings from then on. All arguments are borrowed.
    PrompterWindow(AppSettings& settings, ReadingSettings& reading, const Platform& platform);
    ~PrompterWindow() override;

    /// Places the window on its preferred screen from the next `updateFrame` on. Borrowed.
    void setScreenManager(const ScreenManager* manager) { screenManager = manager; }

    /// Shows the window above all others and directs the keyboard to it.
    void makeKeyAndOrderFront();

    void updateFrame(); ///< places and sizes the window as the settings say

    /// Leaves a part of the window out, in its own coordinates, so that what lies below is seen and
    /// clicked there.
    void cutOut(const QRegion& part);

    Rect frame() const; ///< where the window is, in points

    /// The screen that most of the window is on, or should be while it is on none.
    std::optional<Screen> currentScreen() const;

    /// The height of the strip that a menu bar takes on the window's screen, in points.
    double menuBarHeight() const;

    /// Reduces the window to its strip of controls, or brings it back.
    void toggleCollapsed();
    bool isCollapsed() const { return collapsed; }

    /// Shows another text. Any thread; takes effect on the main thread later.
    void updateText(const QString& text);

    /// Shows the last text again, with the settings as they are now.
    void rerender();
    bool showsScript() const; ///< whether a text of the user's can be seen here
    void updateStats();       ///< tells the words and the reading time of the text

    /// Moves the text by so many points; negative is forward.
    void performScroll(double deltaY);

    void toggleAutoScroll();       ///< and saves the settings
    void updateScrollParameters(); ///< takes speed and rate over from the settings

    void updateSourceModeIndicator(SourceMode mode);
    void updateSourceIndicator(SourceType source);
    void updateMinimizeButtonAppearance(); ///< it shows what it does next

    /// What it shows and does now; the version is for the program to tell.
    PrompterStatus status() const;

    ControlStrip& controls() const { return *strip; }    ///< for connecting their actions
    ReadingSession& reading() const { return *session; } ///< what is read here
    ScriptView& textView() const { return *view; }       ///< and shown by this
    PrompterLook& look() const { return *textLook; }     ///< how it looks
    TextCovers& covers() const { return *textCovers; }   ///< what may lie over the text
    NoticeBar& notices() const { return *noticeBar; }    ///< tells what came of something

Q_SIGNALS:
    void keyPressed(const PrompterKey& key);
    /// A text that was handed in is on show, also when it is the same as before.
    void textShown(const QString& text);

protected:
    void setVisible(bool visible) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void setupUI();
    void renderContent();
    void setFrame(const Rect& target, const Screen& screen);
    void place(const QRect& target, const Screen& screen);
    void arrangeContent();
    void updateStatsOfWhatIsSeen();
    void shape();
    void settingsChanged(const PersistedSettings& before);
    void updateReadingFrame();
    bool isTextSeen() const { return isVisible() && !collapsed; }
    void readingOptionsChanged();
    void keyboardRefused();

    AppSettings& settings;
    AppSettings::Observation settingsObservation;
    ReadingSettings& readingSettings;
    ReadingSettings::Observation readingObservation;
    const Platform& platform;
    const std::shared_ptr<ReadingSession> session;
    std::unique_ptr<ReadingConductor> conductor;
    std::unique_ptr<RepeatingTimer> countingDown;
    const ScreenManager* screenManager = nullptr;
    ControlStrip* strip = nullptr;
    QWidget* scrollArea = nullptr; ///< what of the text is seen
    ScriptView* view = nullptr;
    TextCovers* textCovers = nullptr;
    NoticeBar* noticeBar = nullptr;
    std::unique_ptr<PrompterLook> textLook;
    bool watchesClicks = false;
    bool toldOfKeyboard = false;
    bool collapsed = false;
    bool squareCorners = false; ///< follows `collapsed` once the window has its height
    QRegion hole;               ///< what is cut out
    double expandedHeight = 0.0;
    std::unique_ptr<PrompterContent> content;
    ResizeAnimation resizing;
    Lifetime lifetime;
};

} // namespace tessaline

#include "prompter/PrompterWindow.h"

#include "support/Part.h"

#include "appearance/SystemPalette.h"
#include "controls/ElidingLabel.h"
#include "controls/IconImage.h"
#include "prompter/ControlStrip.h"
#include "prompter/PrompterWindowFixture.h"
#include "prompter/controls/PressableButton.h"
#include "prompter/controls/TrafficLightCloseButton.h"
#include "prompter/view/ScriptView.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

TEST_F(PrompterWindowTest, TellsWordsAndTime) {
    show(u"one two three"_s);
    EXPECT_EQ(statistics(), u"3 words • ~5s"_s);
    EXPECT_EQ(part<QLabel>(window(), "prompter_statsLabel")->palette().color(QPalette::WindowText),
              SystemPalette::yellow);
}

TEST_F(PrompterWindowTest, TellsTheTimeForWhatIsLeftToScroll) {
    show(u"line\n"_s.repeated(200));
    const double remaining = window().textView().maximumScrollPosition();
    const long units = std::lround(remaining / 10.240000000000002 / 5);
    const auto seconds = units * 5;
    EXPECT_EQ(statistics(), u"200 words • ~%1m%2s"_s.arg(seconds / 60).arg(seconds % 60));
}

TEST_F(PrompterWindowTest, CorrectsTheTimeOnceTheRestOfTheTextHasBeenMeasured) {
    window().updateText(u"iiii "_s.repeated(1500) + u"\n"_s + u"iiii "_s.repeated(1500));
    queue.runAll();
    auto& view = window().textView();
    ASSERT_FALSE(view.isLayoutComplete());
    const QString estimate = statistics();
    view.reveal(0);
    view.reveal(view.script().length());
    ASSERT_TRUE(view.isLayoutComplete());
    const QString told = statistics();
    window().updateStats();
    EXPECT_EQ(told, statistics());
    EXPECT_NE(told, estimate);
}

TEST_F(PrompterWindowTest, ShowsTheRateInTheColorOfTheStatistics) {
    show(u"text"_s);
    settings.setScrollRate(ScrollRate::fast);
    window().updateScrollParameters();
    EXPECT_EQ(part<QLabel>(window(), "prompter_statsLabel")->palette().color(QPalette::WindowText),
              SystemPalette::red);
}

TEST_F(PrompterWindowTest, NamesTheSourceInItsColor) {
    const ControlStrip& strip = window().controls();
    const auto color = [&] {
        return part<QLabel>(strip, "prompter_sourceLabel")->palette().color(QPalette::WindowText);
    };
    window().updateSourceIndicator(SourceType::obsidian);
    EXPECT_EQ(part<QLabel>(strip, "prompter_sourceLabel")->text(), u"OBSIDIAN"_s);
    EXPECT_EQ(color(), QColor::fromRgbF(0.49F, 0.23F, 0.93F));
    EXPECT_EQ(part<QAbstractButton>(strip, "prompter_pasteButton")->toolTip(),
              u"Cycle content source (current: Obsidian)"_s);
    EXPECT_EQ(part<QAbstractButton>(strip, "prompter_pasteButton")->text(), u"📋"_s);
    EXPECT_TRUE(part<QLabel>(strip, "prompter_sourceIconView")->isVisible());
    EXPECT_EQ(part<QLabel>(strip, "prompter_sourceIconView")->accessibleName(), u"Obsidian"_s);
    window().updateSourceIndicator(SourceType::appleNotes);
    EXPECT_EQ(part<QLabel>(strip, "prompter_sourceLabel")->text(), u"APPLE NOTES"_s);
    EXPECT_EQ(color(), SystemPalette::yellow);
    window().updateSourceIndicator(SourceType::clipboard);
    EXPECT_EQ(part<QLabel>(strip, "prompter_sourceLabel")->text(), u"CLIPBOARD"_s);
    EXPECT_EQ(color(), SystemPalette::orange);
    EXPECT_EQ(part<QAbstractButton>(strip, "prompter_pasteButton")->toolTip(),
              u"Cycle content source (current: Clipboard)"_s);
    EXPECT_EQ(part<QAbstractButton>(strip, "prompter_pasteButton")->text(), u"📄"_s);
}

TEST_F(PrompterWindowTest, NamesTheSourceMode) {
    const ControlStrip& strip = window().controls();
    EXPECT_EQ(part<QLabel>(strip, "prompter_sourceLabel")->text(), u"FILE"_s);
    EXPECT_EQ(part<QAbstractButton>(strip, "prompter_pasteButton")->toolTip(),
              u"Switch to clipboard mode (paste)"_s);
    EXPECT_EQ(part<QAbstractButton>(strip, "prompter_pasteButton")->text(), u"📋"_s);
    window().updateSourceModeIndicator(SourceMode::clipboard);
    EXPECT_EQ(part<QLabel>(strip, "prompter_sourceLabel")->text(), u"CLIP"_s);
    EXPECT_EQ(part<QAbstractButton>(strip, "prompter_pasteButton")->toolTip(),
              u"Switch back to file mode"_s);
    EXPECT_EQ(part<QAbstractButton>(strip, "prompter_pasteButton")->text(), u"📄"_s);
}

TEST_F(PrompterWindowTest, ShowsWhatTheMinimizeButtonDoesNext) {
    const auto* button = part<QAbstractButton>(window(), "prompter_minimizeButton");
    EXPECT_EQ(button->text(), u"—"_s);
    window().toggleCollapsed();
    EXPECT_EQ(button->text(), u"□"_s);
    window().toggleCollapsed();
    EXPECT_EQ(button->text(), u"—"_s);
    EXPECT_EQ(button->font().weight(), QFont::Bold);
}

struct Control {
    QString identifier;
    QString name;
    QString toolTip;
};

TEST_F(PrompterWindowTest, DescribesItsControls) {
    for (const auto& [identifier, name, toolTip] :
         {Control{u"prompter_quitButton"_s, u"Quit"_s, u"Quit Tessaline"_s},
          Control{u"prompter_minimizeButton"_s, u"Minimize"_s, u"Minimize/Expand window"_s},
          Control{u"prompter_configButton"_s, u"Settings"_s, u"Open Settings"_s},
          Control{u"prompter_autoScrollButton"_s, u"Toggle Auto-Scroll"_s, u"Toggle auto-scroll"_s},
          Control{u"prompter_pasteButton"_s, u"Toggle content source"_s,
                  u"Switch to clipboard mode (paste)"_s}}) {
        auto* button = window().findChild<QAbstractButton*>(identifier);
        ASSERT_TRUE(button) << identifier.toStdString();
        const auto* spoken = QAccessible::queryAccessibleInterface(button);
        EXPECT_EQ(spoken->role(), QAccessible::Button) << identifier.toStdString();
        EXPECT_EQ(spoken->text(QAccessible::Name), name);
        EXPECT_EQ(button->toolTip(), toolTip);
        EXPECT_TRUE(button->isVisible());
    }
    EXPECT_TRUE(window().findChild<QWidget*>(u"prompter_textView"_s));
    EXPECT_EQ(window().findChild<QWidget*>(u"prompter_statsLabel"_s)->toolTip(),
              u"Reading statistics"_s);
    EXPECT_EQ(window().findChild<QWidget*>(u"prompter_sourceLabel"_s)->toolTip(),
              u"Content source"_s);
}

} // namespace
} // namespace tessaline

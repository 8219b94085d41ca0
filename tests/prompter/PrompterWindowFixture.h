#pragma once

#include "controls/ElidingLabel.h"
#include "prompter/ControlStrip.h"
#include "prompter/Placeholder.h"
#include "prompter/PrompterWindow.h"
#include "prompter/view/ScriptView.h"
#include "reading/ReadingSession.h"
#include "settings/AppSettings.h"
#include "settings/ReadingSettings.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeMainQueue.h"
#include "support/FakeScreens.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeTimerMaker.h"
#include "support/FakeWindowTraits.h"
#include "support/Part.h"
#include "support/TestPlatform.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace tessaline {

/// A prompter on one screen, the offscreen platform's, with a panel of 32 points at its top.
class PrompterWindowTest : public testing::Test {
protected:
    PrompterWindowTest() {
        const QSize size = QApplication::primaryScreen()->size();
        Screen screen{.id = 1, .name = QStringLiteral("screen")};
        screen.frame = {0, 0, double(size.width()), double(size.height())};
        screen.visibleFrame = screen.frame;
        screen.visibleFrame.height -= 32;
        screen.refreshRate = 144;
        screens.attached = {screen};
        screens.main = screen;
    }

    PrompterWindow& window() {
        if (!prompter) {
            prompter = std::make_unique<PrompterWindow>(settings, readingSettings, fakes.platform);
            prompter->show();
        }
        return *prompter;
    }

    void show(const QString& markdown) {
        window().updateText(markdown);
        queue.runAll();
        window().textView().completeLayout();
    }

    QString statistics() { return part<QLabel>(window(), "prompter_statsLabel")->text(); }

    /// The hint takes sixty points, about, in the middle of the text view.
    void expectHintInTheMiddle() {
        auto& view = window().textView();
        const double margin = view.caretRect(0).top() + view.scrollPosition();
        const double textMargin = 10;
        EXPECT_EQ(margin, (view.height() - 60) / 2.0 + textMargin);

        const auto session =
            std::make_shared<ReadingSession>(settings.values(), readingSettings.values());
        ScriptView fresh(session);
        fresh.resize(view.size());
        session->setContent({std::make_shared<const Script>(placeholderText(view.height()))});
        EXPECT_EQ(view.grab().toImage(), fresh.grab().toImage());
    }

    /// Lets the resize animation run to its end.
    void finishResizing(int height) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return window().height() == height; }, 3000))
            << window().height();
    }

    QTemporaryDir folder;
    AppSettings settings{folder.filePath(QStringLiteral("config.json"))};
    ReadingSettings readingSettings{folder.filePath(QStringLiteral("reading.json"))};
    TestPlatform fakes;
    FakeMainQueue& queue = fakes.mainQueue;
    FakeTaskRunner& tasks = fakes.renderTasks;
    FakeTimerMaker& timers = fakes.timers;
    FakeDisplayLinkMaker& links = fakes.displayLinks;
    FakeScreens& screens = fakes.screens;
    FakeWindowTraits& traits = fakes.windowTraits;
    std::unique_ptr<PrompterWindow> prompter;
};

} // namespace tessaline

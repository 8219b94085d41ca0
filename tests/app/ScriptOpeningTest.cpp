#include "app/opening/ScriptOpening.h"

#include "AppDelegateFixture.h"
#include "platform/ProcessRunner.h"
#include "prompter/PrompterWindow.h"
#include "prompter/controls/PressableButton.h"
#include "prompter/covers/NoticeBar.h"
#include "prompter/view/ScriptView.h"
#include "reading/ReadingSession.h"
#include "settings/ReadingSettings.h"
#include "support/FakeFileChooser.h"
#include "support/Part.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QByteArray talk = "# First Part\n\n" + QByteArray("A line of the talk.\n\n").repeated(60) +
                        "# Second Part\n\n" + QByteArray("Another line of it.\n\n").repeated(60);

/// The running program, with files to open.
class ScriptOpeningTest : public AppDelegateFixture {
protected:
    ScriptOpeningTest() { launch(); }

    QString write(const QString& name, const QByteArray& bytes = talk) {
        putFile(folder.filePath(name), bytes);
        return folder.filePath(name);
    }

    ScriptOpening& opening() { return delegate->opening(); }
    ScriptView& view() { return prompter()->textView(); }

    /// Lets everything happen that was begun.
    void settle() {
        scriptTasks.runAll();
        fileTasks.runAll();
        mainQueue.runAll();
        renderTasks.runAll();
        mainQueue.runAll();
        view().completeLayout();
    }

    QString openAndTell(const QString& path) {
        QString told = u"nothing"_s;
        opening().open(path, [&](const QString& problem) { told = problem; });
        settle();
        return told;
    }

    QString notice() {
        const bool isShown = prompter()->notices().isVisible();
        return isShown ? part<QLabel>(*prompter(), "prompter_noticeText")->text() : QString();
    }
    PressableButton& offer() {
        return *part<PressableButton>(*prompter(), "prompter_noticeButton");
    }

    void scrollToHeading(const QString& name) {
        view().scrollTo(view().positionOf(view().script().text().indexOf(name)));
    }

    /// Ends the program and starts it again.
    void restart() {
        delegate->applicationWillTerminate();
        delegate.reset();
        launch();
        settle();
    }

    /// The entries of the text's menu, as it would open now.
    QStringList menuEntries() {
        QStringList entries;
        const auto inspect = [&entries] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (const QAction* action : menu->actions())
                if (!action->isSeparator() && action->isVisible()) entries += action->text();
            menu->close();
        };
        QMetaObject::invokeMethod(qApp, inspect, Qt::QueuedConnection);
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, view().mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&view(), &event);
        return entries;
    }

    QAction& entry(const QString& text) {
        for (QAction* action : view().actions())
            if (action->text() == text) return *action;
        ADD_FAILURE() << text.toStdString();
        static QAction none;
        return none;
    }

    void drop(const QMimeData& data, QWidget& target,
              Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction) {
        QDragEnterEvent enter({5, 5}, actions, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&target, &enter);
        accepted = enter.isAccepted();
        if (!accepted) return;
        EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
        QDropEvent event({5, 5}, actions, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&target, &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction);
        settle();
    }

    void dropFiles(const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls += QUrl::fromLocalFile(path);
        data.setUrls(urls);
        drop(data, *prompter());
    }

    QTemporaryDir folder;
    bool accepted = false;
};

TEST_F(ScriptOpeningTest, ShowsAFileAsIfItHadBeenPasted) {
    const QString path = write(u"talk.md"_s);
    EXPECT_EQ(openAndTell(path), QString());
    EXPECT_EQ(keptScript(), QString::fromUtf8(talk));
    EXPECT_EQ(notice(), QString());
    EXPECT_EQ(delegate->status().file, path);
    EXPECT_EQ(delegate->status().latest, QStringList{path});
    EXPECT_TRUE(recorded(u"content_pasted"_s));
}

TEST_F(ScriptOpeningTest, BringsThePrompterToTheFrontOnlyWhereItIsHidden) {
    openAndTell(write(u"talk.md"_s));
    EXPECT_FALSE(recorded(u"window_shown"_s));
    delegate->hidePrompterWindow();
    openAndTell(folder.filePath(u"gone.md"_s));
    EXPECT_FALSE(prompter()->isVisible());
    openAndTell(write(u"other.md"_s, "# Other"));
    EXPECT_TRUE(prompter()->isVisible());
}

TEST_F(ScriptOpeningTest, ReadsInTheBackground) {
    opening().open(write(u"talk.md"_s));
    mainQueue.runAll();
    EXPECT_EQ(keptScript(), QString());
    EXPECT_EQ(delegate->status().latest, QStringList());
}

TEST_F(ScriptOpeningTest, TellsInOneLineWhyAFileIsNotShown) {
    openAndTell(write(u"talk.md"_s));
    const QString gone = folder.filePath(u"gone.md"_s);
    EXPECT_EQ(openAndTell(gone), u"No such file or directory"_s);
    EXPECT_EQ(notice(), u"Cannot open gone.md: No such file or directory"_s);
    openAndTell(folder.path());
    EXPECT_TRUE(notice().endsWith(u": it is a folder"));
    openAndTell(write(u"film.mp4"_s, QByteArray(100, '\0')));
    EXPECT_EQ(notice(), u"Cannot open film.mp4: it is not text"_s);
    openAndTell(write(u"empty.md"_s, ""));
    EXPECT_EQ(notice(), u"empty.md is empty"_s);
    EXPECT_EQ(keptScript(), QString::fromUtf8(talk)) << "nothing is lost";
    EXPECT_EQ(delegate->status().latest.size(), 1);
}

TEST_F(ScriptOpeningTest, SaysThatADocumentTakesAWhile) {
    processes.result = {u"# Converted"_s, {}, 0};
    opening().open(write(u"talk.docx"_s, "PK\x03\x04"));
    EXPECT_EQ(notice(), u"Opening talk.docx …"_s);
    settle();
    EXPECT_EQ(notice(), QString());
    EXPECT_EQ(keptScript(), u"# Converted"_s);
    processes.result = {{}, {}, -1, false, {}};
    openAndTell(write(u"talk.odt"_s, "PK\x03\x04"));
    EXPECT_EQ(notice(), u"Cannot open talk.odt: install pandoc, the program that reads .docx and "
                        ".odt for Tessaline"_s);
}

TEST_F(ScriptOpeningTest, BeginsAnotherFileAtItsTopAndKeepsThePlaceInTheSameOne) {
    const QString path = write(u"talk.md"_s);
    openAndTell(path);
    view().scrollTo(500);
    openAndTell(path);
    EXPECT_EQ(view().scrollPosition(), 500);
    openAndTell(write(u"other.md"_s, QByteArray(talk).replace("line", "word")));
    EXPECT_EQ(view().scrollPosition(), 0);
}

TEST_F(ScriptOpeningTest, TakesADropOfOneFile) {
    dropFiles({write(u"talk.md"_s)});
    EXPECT_TRUE(accepted);
    EXPECT_EQ(keptScript(), QString::fromUtf8(talk));
    EXPECT_EQ(notice(), QString());
}

TEST_F(ScriptOpeningTest, TakesTheFirstOfSeveralDroppedFilesAndSaysSo) {
    QStringList paths{write(u"a.md"_s)};
    for (int i = 1; i < 10; ++i)
        paths += folder.filePath(u"missing-%1.md"_s.arg(i));
    dropFiles(paths);
    EXPECT_EQ(notice(), u"Opened a.md, the first of 10 files"_s);
    EXPECT_EQ(delegate->status().latest, QStringList{paths.first()});
}

TEST_F(ScriptOpeningTest, TakesADroppedTextAndNoOtherThings) {
    QMimeData text;
    text.setText(u"# Dropped"_s);
    drop(text, *prompter());
    EXPECT_EQ(keptScript(), u"# Dropped"_s);
    QMimeData address;
    address.setUrls({QUrl(u"https://example.org/talk.md"_s)});
    drop(address, *prompter());
    EXPECT_EQ(notice(), u"Only files on this computer can be opened"_s);
    QMimeData nothing;
    nothing.setText(QString());
    drop(nothing, *prompter());
    EXPECT_EQ(notice(), u"The other program gave nothing to show"_s);
    QMimeData picture;
    picture.setData(u"image/png"_s, "x");
    drop(picture, *prompter());
    EXPECT_FALSE(accepted);
    drop(text, *prompter(), Qt::MoveAction);
    EXPECT_FALSE(accepted) << "it would be gone elsewhere";
    EXPECT_EQ(keptScript(), u"# Dropped"_s);
}

TEST_F(ScriptOpeningTest, AsksForAFileByKeyAndByMenu) {
    const QAction& open = entry(u"Open…"_s);
    EXPECT_EQ(open.shortcut(), QKeySequence(QKeySequence::Open));
    entry(u"Open…"_s).trigger();
    ASSERT_EQ(fileChooser.questions.size(), 1u);
    EXPECT_THAT(fileChooser.questions[0].patterns, Contains(u"*.docx"_s));
    fileChooser.pick(write(u"talk.md"_s));
    settle();
    EXPECT_EQ(keptScript(), QString::fromUtf8(talk));
    opening().choose();
    EXPECT_EQ(fileChooser.questions[1].startFolder, folder.path());
}

TEST_F(ScriptOpeningTest, ListsTheLatestInTheMenuAndTouchesNone) {
    EXPECT_THAT(menuEntries(),
                ElementsAre(u"Copy"_s, u"Select All"_s, u"Open…"_s, u"Latest"_s, u"Reading…"_s));
    EXPECT_FALSE(entry(u"Latest"_s).isEnabled());
    openAndTell(write(u"a & b.md"_s));
    openAndTell(write(u"c.md"_s));
    menuEntries();
    QMenu& latest = *entry(u"Latest"_s).menu();
    ASSERT_EQ(latest.actions().size(), 4);
    EXPECT_EQ(latest.actions().at(0)->text(), u"c.md"_s);
    EXPECT_EQ(latest.actions().at(1)->text(), u"a && b.md"_s);
    QFile::remove(folder.filePath(u"a & b.md"_s));
    latest.actions().at(1)->trigger();
    settle();
    EXPECT_EQ(notice(), u"Cannot open a & b.md: No such file or directory"_s);
    EXPECT_EQ(delegate->status().latest.size(), 2) << "it may come back";
    menuEntries();
    latest.actions().constLast()->trigger();
    EXPECT_THAT(delegate->status().latest, IsEmpty());
}

TEST_F(ScriptOpeningTest, OffersToContinueWhereTheReaderWas) {
    const QString path = write(u"talk.md"_s);
    openAndTell(path);
    EXPECT_EQ(notice(), QString());
    scrollToHeading(u"Second Part"_s);
    const double place = view().scrollPosition();
    openAndTell(write(u"other.md"_s, "# Other"));
    openAndTell(path);
    EXPECT_EQ(view().scrollPosition(), 0) << "nobody is taken there unasked";
    EXPECT_EQ(notice(), u"Opened talk.md"_s);
    EXPECT_EQ(offer().text(), u"Continue at “Second Part”"_s);
    EXPECT_EQ(delegate->status().continueAt, u"Continue at “Second Part”"_s);
    EXPECT_THAT(menuEntries(), Contains(u"Continue at “Second Part”"_s));
    QTest::mouseClick(&offer(), Qt::LeftButton);
    EXPECT_NEAR(view().scrollPosition(), place, 1.0);
    EXPECT_EQ(notice(), QString());
    EXPECT_EQ(menuEntries().filter(u"Continue"_s), QStringList());
    EXPECT_FALSE(opening().places().continueReading());
}

TEST_F(ScriptOpeningTest, OffersItInAnotherLookAsWell) {
    const QString path = write(u"talk.md"_s);
    openAndTell(path);
    delegate->reading().change([](ReadingOptions& values) { values.guide = ReadingGuide::band; });
    scrollToHeading(u"Second Part"_s);
    restart();
    delegate->reading().change([](ReadingOptions& values) { values.guide = ReadingGuide::none; });
    openAndTell(path);
    ASSERT_TRUE(opening().places().continueReading());
    EXPECT_NEAR(view().scrollPosition(),
                view().positionOf(view().script().text().indexOf(u"Second Part"_s)), 1.0);
}

TEST_F(ScriptOpeningTest, OffersItAfterTheNextStartToo) {
    openAndTell(write(u"talk.md"_s));
    scrollToHeading(u"Second Part"_s);
    restart();
    EXPECT_EQ(offer().text(), u"Continue at “Second Part”"_s);
    EXPECT_EQ(view().scrollPosition(), 0);
    view().scrollTo(view().height() / 2.0);
    restart();
    EXPECT_EQ(offer().text(), u"Continue at “Second Part”"_s) << "they only looked";
    view().scrollTo(view().maximumScrollPosition() / 4);
    restart();
    EXPECT_EQ(offer().text(), u"Continue at “First Part”"_s) << "where they were later";
    restart();
    EXPECT_EQ(offer().text(), u"Continue at “First Part”"_s) << "they only looked";
}

TEST_F(ScriptOpeningTest, WritesThePlaceDownNowAndThen) {
    const QString path = write(u"talk.md"_s);
    openAndTell(path);
    scrollToHeading(u"Second Part"_s);
    EXPECT_EQ(opening().latest().find(path)->place, 0);
    timers.advance(PlaceMemory::interval + 0.1);
    EXPECT_GT(opening().latest().find(path)->place, 1000);
}

TEST_F(ScriptOpeningTest, OffersNothingToWhoReadItAll) {
    const QString path = write(u"talk.md"_s);
    openAndTell(path);
    scrollToHeading(u"Second Part"_s);
    timers.advance(PlaceMemory::interval + 0.1);
    view().scrollTo(view().maximumScrollPosition());
    openAndTell(write(u"other.md"_s, "# Other"));
    openAndTell(path);
    EXPECT_EQ(notice(), QString());
}

TEST_F(ScriptOpeningTest, OffersNothingInATextThatIsQuiteAnother) {
    const QString path = write(u"talk.md"_s);
    openAndTell(path);
    scrollToHeading(u"Second Part"_s);
    openAndTell(write(u"other.md"_s, "# Other"));
    write(u"talk.md"_s, talk + talk);
    openAndTell(path);
    EXPECT_EQ(notice(), QString());
}

TEST_F(ScriptOpeningTest, KnowsWhichTextIsFromAFile) {
    const QString path = write(u"talk.md"_s);
    openAndTell(path);
    scrollToHeading(u"Second Part"_s);
    delegate->scripts().open(u"# Pasted"_s);
    settle();
    EXPECT_EQ(delegate->status().file, QString());
    EXPECT_GT(opening().latest().find(path)->place, 1000) << "as it was until then";
    timers.advance(PlaceMemory::interval + 0.1);
    EXPECT_GT(opening().latest().find(path)->place, 1000);
}

TEST_F(ScriptOpeningTest, RemembersThePlaceInAFollowedFile) {
    const QString path = write(u"talk.md"_s);
    opening().follow(path, QString::fromUtf8(talk));
    settle();
    write(u"talk.md"_s, talk + "More.\n");
    timers.advance(0.5);
    settle();
    EXPECT_EQ(delegate->status().file, path);
    scrollToHeading(u"Second Part"_s);
    timers.advance(PlaceMemory::interval + 0.1);
    EXPECT_EQ(opening().latest().find(path)->hash, hashOf(QString::fromUtf8(talk + "More.\n")));
}

} // namespace
} // namespace tessaline

#include "prompter/covers/KeySheet.h"
#include "prompter/PrompterWindowFixture.h"
#include "prompter/covers/TextCovers.h"
#include "reading/ReaderKeys.h"

#include <QScrollBar>

#include <algorithm>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A prompter that shows a hundred lines and the sheet of keys over them.
class KeySheetTest : public PrompterWindowTest {
protected:
    KeySheetTest() {
        show(u"line\n"_s.repeated(100));
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        open();
    }

    void open() {
        window().covers().setShowsKeys(true);
        QApplication::processEvents(); // which lays it out
    }
    KeySheet& sheet() { return *part<KeySheet>(window(), "prompter_keys"); }

    void resize(double width, double height) {
        settings.setWidth(width);
        settings.setHeight(height);
        window().updateFrame();
        QApplication::processEvents();
    }

    QLabel* label(QStringView text) {
        const auto labels = sheet().findChildren<QLabel*>();
        const auto found = std::find_if(labels.begin(), labels.end(),
                                        [text](QLabel* each) { return each->text() == text; });
        return found == labels.end() ? nullptr : *found;
    }

    QRect placeOf(QWidget* part) { return {part->mapTo(&sheet(), QPoint()), part->size()}; }

    bool isShown() { return sheet().isVisible(); }
};

TEST_F(KeySheetTest, HasEveryKeyInSightAtTheUsualSize) {
    for (const auto& [keys, deed] : readerKeys) {
        for (const QStringView text : {keys, deed}) {
            QLabel* shown = label(text);
            ASSERT_TRUE(shown) << text.toString().toStdString();
            EXPECT_TRUE(sheet().rect().contains(placeOf(shown))) << text.toString().toStdString();
            EXPECT_GE(shown->width(), shown->sizeHint().width());
        }
    }
}

TEST_F(KeySheetTest, CoversTheTextWithoutHidingThatItIsThere) {
    EXPECT_EQ(sheet().size(), window().textView().size());
}

TEST_F(KeySheetTest, HasOneColumnWhereTwoHaveNoRoom) {
    const auto left = [this](std::size_t i) {
        return placeOf(label(readerKeys.at(i).keys)).left();
    };
    EXPECT_GT(left(readerKeys.size() - 1), left(0));
    resize(300, 256);
    EXPECT_EQ(left(readerKeys.size() - 1), left(0));
    resize(600, 256);
    EXPECT_GT(left(readerKeys.size() - 1), left(0));
}

TEST_F(KeySheetTest, ScrollsByKeysAndWheelWhereItHasNoRoom) {
    resize(260, 120);
    const double before = window().textView().scrollPosition();
    QLabel* last = label(readerKeys.back().keys);
    EXPECT_FALSE(sheet().rect().contains(placeOf(last)));
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(window().windowHandle(), Qt::Key_PageDown);
    EXPECT_TRUE(sheet().rect().contains(placeOf(last)));
    EXPECT_EQ(window().textView().scrollPosition(), before) << "the text below stays";
}

TEST_F(KeySheetTest, EscapePutsItAwayAndGivesTheKeysBackToTheText) {
    traits.takeKeyboard(window().winId());
    QTest::keyClick(window().windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(isShown());
    EXPECT_EQ(traits.keyboardOwner, window().winId()) << "the prompter keeps the keyboard";
    QTest::keyClick(window().windowHandle(), Qt::Key_Down);
    EXPECT_EQ(window().textView().scrollPosition(), 20);
}

TEST_F(KeySheetTest, AClickPutsItAway) {
    QTest::mouseClick(sheet().viewport(), Qt::LeftButton, {}, {50, 50});
    EXPECT_FALSE(isShown());
    open();
    QTest::mouseClick(label(readerKeys.front().deed), Qt::LeftButton);
    EXPECT_FALSE(isShown());
}

TEST_F(KeySheetTest, LeavesTheKeysThatItTellsToThePrompter) {
    int asked = 0;
    QObject::connect(&window(), &PrompterWindow::keyPressed, [&] { ++asked; });
    for (const auto key : {Qt::Key_Space, Qt::Key_B, Qt::Key_F1})
        QTest::keyClick(window().windowHandle(), key);
    EXPECT_EQ(asked, 3);
}

} // namespace
} // namespace tessaline

#include "platform/qt/QtLocalKeyMonitor.h"

#include "support/PrintQt.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <gmock/gmock.h>

#include <vector>

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::SizeIs;

constexpr auto control = Qt::ControlModifier;
constexpr auto meta = Qt::MetaModifier;
constexpr auto shift = Qt::ShiftModifier;

KeyEvent translated(int key, Qt::KeyboardModifiers modifiers,
                    KeyTranslation translation = KeyTranslation::control) {
    return translateKey(QKeyEvent(QEvent::KeyPress, key, modifiers), translation);
}

TEST(KeyTranslation, KeepsControlAndTakesMetaForCommand) {
    EXPECT_EQ(translated(Qt::Key_T, control).modifiers, Modifier::control);
    EXPECT_EQ(translated(Qt::Key_T, meta).modifiers, Modifier::command);
    EXPECT_EQ(translated(Qt::Key_T, Qt::AltModifier).modifiers, Modifier::option);
    EXPECT_EQ(translated(Qt::Key_T, shift).modifiers, Modifier::shift);
}

TEST(KeyTranslation, SwapsControlAndCommandOnAMac) {
    const auto mac = KeyTranslation::command;
    EXPECT_EQ(translated(Qt::Key_V, control, mac).modifiers, Modifier::command);
    EXPECT_EQ(translated(Qt::Key_V, meta, mac).modifiers, Modifier::control);
}

TEST(KeyTranslation, TakesExactlyControlVForCommandV) {
    EXPECT_EQ(translated(Qt::Key_V, control).modifiers, Modifier::command);
    EXPECT_EQ(translated(Qt::Key_V, control | shift).modifiers,
              Modifier::control | Modifier::shift);
    EXPECT_EQ(translated(Qt::Key_V, control | meta).modifiers,
              Modifier::control | Modifier::command);
    EXPECT_EQ(translated(Qt::Key_C, control).modifiers, Modifier::control);
}

TEST(KeyTranslation, DropsTheNumberPad) {
    EXPECT_EQ(translated(Qt::Key_Up, control | Qt::KeypadModifier).modifiers, Modifier::control);
}

TEST(KeyTranslation, NamesArrows) {
    EXPECT_EQ(translated(Qt::Key_Up, control).keyCode, KeyEvent::upArrow);
    EXPECT_EQ(translated(Qt::Key_Down, control).keyCode, KeyEvent::downArrow);
    EXPECT_EQ(translated(Qt::Key_Left, control).keyCode, -1);
}

TEST(KeyTranslation, TellsCharactersOfKeysThatHaveThem) {
    EXPECT_EQ(translated(Qt::Key_T, control | shift | meta).characters, u"t"_s);
    EXPECT_EQ(translated(Qt::Key_Up, control).characters, QString());
    EXPECT_EQ(translated(Qt::Key_unknown, {}).characters, QString());
}

TEST(KeyTranslation, TellsRepetitions) {
    const QKeyEvent held(QEvent::KeyPress, Qt::Key_T, control, u"t"_s, true);
    EXPECT_TRUE(translateKey(held, KeyTranslation::control).isRepeat);
    EXPECT_FALSE(translated(Qt::Key_T, control).isRepeat);
}

class KeyCounter final : public QWidget {
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent* event) override { keys += isModifier(*event) ? 0 : 1; }

private:
    static bool isModifier(const QKeyEvent& event) {
        return event.key() == Qt::Key_Control || event.key() == Qt::Key_Meta;
    }
};

class QtLocalKeyMonitorTest : public ::testing::Test {
protected:
    std::unique_ptr<LocalKeyMonitor::Registration> start() {
        return QtLocalKeyMonitor(KeyTranslation::control).start([this](const KeyEvent& key) {
            // Qt presses the modifiers too.
            if (!key.characters.isEmpty()) heard.push_back(key);
            return use;
        });
    }

    static void show(QWidget& window) {
        window.show();
        QApplication::setActiveWindow(&window);
        window.setFocus();
    }

    bool use = true;
    std::vector<KeyEvent> heard;
};

TEST_F(QtLocalKeyMonitorTest, KeepsUsedKeysFromTheWindow) {
    KeyCounter window;
    show(window);
    const auto registration = start();
    QTest::keyClick(window.windowHandle(), Qt::Key_V, control);
    ASSERT_THAT(heard, SizeIs(1));
    EXPECT_EQ(heard[0].modifiers, Modifier::command);
    EXPECT_EQ(window.keys, 0);
}

TEST_F(QtLocalKeyMonitorTest, PassesUnusedKeysOnAndHearsThemOnce) {
    KeyCounter window;
    show(window);
    const auto registration = start();
    use = false;
    QTest::keyClick(window.windowHandle(), Qt::Key_A);
    EXPECT_THAT(heard, SizeIs(1));
    EXPECT_EQ(window.keys, 1);
}

TEST_F(QtLocalKeyMonitorTest, HearsNothingOnceItsRegistrationIsGone) {
    KeyCounter window;
    show(window);
    start().reset();
    QTest::keyClick(window.windowHandle(), Qt::Key_V, control);
    EXPECT_THAT(heard, SizeIs(0));
    EXPECT_EQ(window.keys, 1);
}

TEST_F(QtLocalKeyMonitorTest, LeavesControlVToAFieldInWhichSomebodyTypes) {
    QLineEdit field;
    show(field);
    const auto registration = start();
    QTest::keyClick(field.windowHandle(), Qt::Key_V, control);
    EXPECT_THAT(heard, SizeIs(0));
    QTest::keyClick(field.windowHandle(), Qt::Key_V, meta);
    EXPECT_THAT(heard, SizeIs(1));
}

TEST_F(QtLocalKeyMonitorTest, TakesControlVFromAFieldThatCanOnlyBeRead) {
    QLineEdit field;
    field.setReadOnly(true);
    show(field);
    const auto registration = start();
    QTest::keyClick(field.windowHandle(), Qt::Key_V, control);
    EXPECT_THAT(heard, SizeIs(1));
}

} // namespace

} // namespace tessaline

#include "ui/Alert.h"

#include "support/PrintQt.h"
#include "ui/VisibleSheet.h"

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QTest>

#include <gmock/gmock.h>

#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class AlertTest : public testing::Test {
protected:
    AlertTest() { window.show(); }

    Alert* ask(const QString& title = u"Title"_s) {
        AlertContent content;
        content.messageText = title;
        content.informativeText = u"What <b>there</b> is to say"_s;
        content.buttons = {u"Select"_s, u"Cancel"_s};
        return Alert::beginSheet(window, content, nullptr,
                                 [this](int button) { answers.push_back(button); });
    }

    QWidget window;
    std::vector<int> answers;
};

TEST_F(AlertTest, BlocksItsWindowAndReturnsAtOnce) {
    const Alert* alert = ask();
    EXPECT_TRUE(alert->isVisible());
    EXPECT_EQ(alert->windowModality(), Qt::WindowModal);
    EXPECT_EQ(alert->parentWidget(), &window);
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(AlertTest, ShowsItsTextsAsTheyAre) {
    const Alert* alert = ask();
    EXPECT_EQ(part<QLabel>(*alert, "messageLabel")->text(), u"Title"_s);
    EXPECT_EQ(part<QLabel>(*alert, "informativeLabel")->text(), u"What <b>there</b> is to say"_s);
    EXPECT_EQ(part<QLabel>(*alert, "informativeLabel")->textFormat(), Qt::PlainText);
    ASSERT_EQ(alertButtons(*alert).size(), 2);
    EXPECT_EQ(alertButtons(*alert)[0]->text(), u"Select"_s);
    EXPECT_EQ(alertButtons(*alert)[1]->text(), u"Cancel"_s);
}

TEST_F(AlertTest, TellsWhichButtonWasPressedAndGoesAway) {
    const QPointer<Alert> alert = ask();
    QTest::mouseClick(alertButtons(*alert)[0], Qt::LeftButton);
    EXPECT_THAT(answers, ElementsAre(0));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(alert);
}

TEST_F(AlertTest, ReturnPressesTheFirstButton) {
    QTest::keyClick(ask(), Qt::Key_Return);
    EXPECT_THAT(answers, ElementsAre(0));
}

TEST_F(AlertTest, EscapeAndClosingCountAsTheLastButton) {
    QTest::keyClick(ask(), Qt::Key_Escape);
    ask()->close();
    EXPECT_THAT(answers, ElementsAre(1, 1));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(AlertTest, WaitsForTheOneBeforeIt) {
    Alert* first = ask(u"First"_s);
    Alert* second = ask(u"Second"_s);
    const Alert* third = ask(u"Third"_s);
    EXPECT_FALSE(second->isVisible());
    QTest::mouseClick(alertButtons(*first)[1], Qt::LeftButton);
    EXPECT_TRUE(second->isVisible());
    EXPECT_FALSE(third->isVisible());
    QTest::mouseClick(alertButtons(*second)[0], Qt::LeftButton);
    EXPECT_TRUE(third->isVisible());
    EXPECT_THAT(answers, ElementsAre(1, 0));
}

TEST_F(AlertTest, MayOpenAnotherOneWhenItIsAnswered) {
    Alert* next = nullptr;
    Alert* first = Alert::beginSheet(window, {.messageText = u"First"_s}, nullptr,
                                     [this, &next](int) { next = ask(); });
    QTest::keyClick(first, Qt::Key_Escape);
    ASSERT_TRUE(next);
    EXPECT_TRUE(next->isVisible());
}

TEST_F(AlertTest, NeedsNobodyToTell) {
    const QPointer<Alert> alert = Alert::beginSheet(window, {.messageText = u"Note"_s});
    EXPECT_EQ(alertButtons(*alert).front()->text(), u"OK"_s);
    QTest::keyClick(alert, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(alert);
}

TEST_F(AlertTest, GoesWithItsWindowWithoutAnAnswer) {
    auto owner = std::make_unique<QWidget>();
    const QPointer<Alert> alert =
        Alert::beginSheet(*owner, {.messageText = u"Note"_s}, nullptr,
                          [this](int button) { answers.push_back(button); });
    owner.reset();
    EXPECT_FALSE(alert);
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(AlertTest, HoldsTheAccessoryBetweenTextAndButtons) {
    auto* accessory = new QWidget;
    accessory->setFixedSize(300, 25);
    const Alert* alert = Alert::beginSheet(window, {.messageText = u"Pick"_s}, accessory);
    const auto top = [alert](const QWidget* part) { return part->mapTo(alert, QPoint(0, 0)).y(); };
    EXPECT_TRUE(accessory->isVisible());
    EXPECT_GT(top(accessory), top(part<QLabel>(*alert, "informativeLabel")));
    EXPECT_LT(top(accessory), top(alertButtons(*alert).front()));
}

TEST_F(AlertTest, ShowsEveryLineOfALongText) {
    AlertContent content;
    content.messageText = u"Error"_s;
    content.informativeText = QString(60, u'x').append(u' ').repeated(12);
    const Alert* alert = Alert::beginSheet(window, content);
    const auto* informative = part<QLabel>(*alert, "informativeLabel");
    EXPECT_GE(informative->height(), informative->heightForWidth(informative->width()));
    EXPECT_TRUE(alert->rect().contains(alertButtons(*alert).front()->geometry()));
}

TEST_F(AlertTest, DrawsAnotherIconForAWarningAndTheGivenOneBeforeBoth) {
    const auto iconOf = [this](const AlertContent& content) {
        auto* alert = Alert::beginSheet(window, content);
        QImage icon = part<QLabel>(*alert, "iconLabel")->grab().toImage();
        QTest::keyClick(alert, Qt::Key_Escape);
        return icon;
    };
    const QImage plain = iconOf({.messageText = u"a"_s});
    const QImage warning = iconOf({.messageText = u"a"_s, .style = AlertContent::Style::warning});
    QPixmap red(48, 48);
    red.fill(Qt::red);
    const QImage given =
        iconOf({.messageText = u"a"_s, .style = AlertContent::Style::warning, .icon = QIcon(red)});
    EXPECT_NE(plain, warning);
    EXPECT_NE(given, warning);
    EXPECT_EQ(given.pixelColor(given.rect().center()), QColor(Qt::red));
}

TEST_F(AlertTest, InformsUnderTheProgramsOwnIconButDoesNotWarnUnderIt) {
    QPixmap green(48, 48);
    green.fill(Qt::green);
    QApplication::setWindowIcon(green);
    const auto middleOfTheIcon = [this](AlertContent::Style style) {
        auto* alert = Alert::beginSheet(window, {.messageText = u"a"_s, .style = style});
        const QImage icon = part<QLabel>(*alert, "iconLabel")->grab().toImage();
        QTest::keyClick(alert, Qt::Key_Escape);
        return icon.pixelColor(icon.rect().center());
    };
    EXPECT_EQ(middleOfTheIcon(AlertContent::Style::informational), QColor(Qt::green));
    EXPECT_NE(middleOfTheIcon(AlertContent::Style::warning), QColor(Qt::green));
    QApplication::setWindowIcon({});
}

TEST_F(AlertTest, SpeaksItsTitleAndText) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(ask());
    ASSERT_TRUE(spoken);
    EXPECT_EQ(spoken->role(), QAccessible::Dialog);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Title"_s);
    EXPECT_EQ(spoken->text(QAccessible::Description), u"What <b>there</b> is to say"_s);
}

} // namespace
} // namespace tessaline

#include "platform/qt/QuitRequests.h"

#include <QCoreApplication>
#include <QEvent>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

TEST(QuitRequests, AreCarriedOutInPlaceOfTheToolkit) {
    int quits = 0;
    QuitRequests requests([&] { ++quits; });
    QCoreApplication::instance()->installEventFilter(&requests);
    QEvent quit(QEvent::Quit);
    quit.ignore();
    EXPECT_TRUE(QCoreApplication::sendEvent(QCoreApplication::instance(), &quit));
    EXPECT_TRUE(quit.isAccepted());
    EXPECT_EQ(quits, 1);
}

TEST(QuitRequests, GetNoFurther) {
    QuitRequests requests([] {});
    QEvent quit(QEvent::Quit);
    EXPECT_TRUE(requests.eventFilter(QCoreApplication::instance(), &quit));
}

TEST(QuitRequests, AreNotMistakenForOtherEvents) {
    int quits = 0;
    QuitRequests requests([&] { ++quits; });
    QObject somebodyElse;
    QEvent quit(QEvent::Quit);
    QEvent other(QEvent::User);
    EXPECT_FALSE(requests.eventFilter(&somebodyElse, &quit));
    EXPECT_FALSE(requests.eventFilter(QCoreApplication::instance(), &other));
    EXPECT_EQ(quits, 0);
}

} // namespace
} // namespace tessaline

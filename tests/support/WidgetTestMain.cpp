#include "support/TestEnvironment.h"

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    const tessaline::TestEnvironment environment;
    // Also when the program is started by hand on a desktop: no window of a test may appear there.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

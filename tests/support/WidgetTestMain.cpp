#include "support/TestEnvironment.h"

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    const tessaline::TestEnvironment environment;
    // Also when the program is started by hand on a desktop: no window of a test may appear there.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Every case is a process of its own, and must not go through all fonts of the machine.
    qputenv("FONTCONFIG_FILE", TESSALINE_TEST_FONTS);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

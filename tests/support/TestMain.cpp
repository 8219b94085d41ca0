#include "support/TestEnvironment.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    const tessaline::TestEnvironment environment;
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

#include "app/remote/InstanceAddress.h"

#include "support/PrintQt.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// XQuartz sets DISPLAY to the path of a socket, for every program of the login.
TEST(SessionOnAMac, HasOneDisplayWhateverXQuartzSays) {
    const QTemporaryDir temporary;
    for (const QString& display :
         {QString(), u":0"_s,
          u"/private/tmp/com.apple.launchd.0123456789/org.xquartz:0/"_s.repeated(3)}) {
        QString problem;
        const auto address = InstanceAddress::ofSession(
            [&](const char* name) { return qstrcmp(name, "DISPLAY") == 0 ? display : QString(); },
            temporary.path(), &problem);
        ASSERT_TRUE(address.has_value()) << qPrintable(problem);
        EXPECT_EQ(address->display, u"main"_s);
    }
}

} // namespace
} // namespace tessaline

#include "analytics/SystemDescription.h"

#include "support/PrintQt.h"

#include <QRegularExpression>
#include <QSysInfo>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(SystemDescriptionTest, AlwaysHasThreeNumbersInItsVersion) {
    EXPECT_EQ((SystemDescription{.majorVersion = 14, .minorVersion = 2}).version(), u"14.2.0"_s);
    EXPECT_EQ(SystemDescription().version(), u"0.0.0"_s);
}

TEST(SystemDescriptionTest, NamesThisSystem) {
    const auto system = SystemDescription::current();
    const bool isMac = QSysInfo::productType() == u"macos"_s;
    EXPECT_EQ(system.name, isMac ? u"macOS"_s : u"Linux"_s);
    EXPECT_EQ(system.description, QSysInfo::prettyProductName());
    // "unknown" where a distribution has no releases.
    EXPECT_TRUE(QSysInfo::productVersion() == u"unknown"_s ||
                system.version().startsWith(QSysInfo::productVersion()));
}

} // namespace
} // namespace tessaline

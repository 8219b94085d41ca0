#include "platform/linux/desktop/LinuxBundleInformation.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(LinuxBundleInformation, NamesTheProgramAndItsVersion) {
    const LinuxBundleInformation bundle(u"/"_s);
    EXPECT_EQ(bundle.identifier(), u"app.tessaline.Tessaline"_s);
    EXPECT_EQ(bundle.value(u"CFBundleIdentifier"_s), bundle.identifier());
    EXPECT_EQ(bundle.value(u"CFBundleShortVersionString"_s), u"" TESSALINE_VERSION ""_s);
    EXPECT_EQ(bundle.value(u"CFBundleVersion"_s), u"" TESSALINE_VERSION ""_s);
    EXPECT_TRUE(bundle.value(u"TelemetryDeckAppID"_s));
    EXPECT_EQ(bundle.value(u"NSSomethingElse"_s), std::nullopt);
}

class LinuxResourceFolder : public testing::Test {
protected:
    QTemporaryDir folder;
    LinuxBundleInformation bundle{folder.filePath(u"bin"_s)};
};

TEST_F(LinuxResourceFolder, IsNoneWhenThereIsNone) {
    EXPECT_EQ(bundle.resourceFolder(), std::nullopt);
}

TEST_F(LinuxResourceFolder, IsWhereAnInstallationPutsIt) {
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"share/tessaline"_s)));
    EXPECT_EQ(bundle.resourceFolder(), folder.filePath(u"share/tessaline"_s));
}

TEST_F(LinuxResourceFolder, IsBesideTheProgramWhereItWasBuilt) {
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"share/tessaline"_s)));
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"bin/resources"_s)));
    EXPECT_EQ(bundle.resourceFolder(), folder.filePath(u"bin/resources"_s));
}

} // namespace
} // namespace tessaline

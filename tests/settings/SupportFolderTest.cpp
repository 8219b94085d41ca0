#include "settings/SupportFolder.h"

#include "settings/TemporaryHome.h"

#include <QDir>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(SupportFolder, LiesBelowTheHomeFolder) {
    const TemporaryHome home;
    EXPECT_EQ(homeFolderPath(), home.path());
    EXPECT_EQ(supportFolderPath(), home.path() + u"/Library/Application Support/Tessaline"_s);
}

TEST(SupportFolder, IsNotCreatedByAsking) {
    const TemporaryHome home;
    EXPECT_FALSE(QDir(supportFolderPath()).exists());
}

TEST(SupportFolder, DropsASlashAtTheEndOfTheHomeFolder) {
    const TemporaryHome home;
    qputenv("HOME", home.path().toUtf8() + '/');
    EXPECT_EQ(homeFolderPath(), home.path());
}

TEST(SupportFolder, OfTheRootFolderStartsWithOneSlash) {
    const TemporaryHome home;
    qputenv("HOME", "/");
    EXPECT_EQ(homeFolderPath(), QString());
    EXPECT_EQ(supportFolderPath(), u"/Library/Application Support/Tessaline"_s);
}

} // namespace
} // namespace tessaline

#include "settings/FilePath.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <QDir>

#include <gtest/gtest.h>

#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class FilePathBytes : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Names, FilePathBytes,
                         testing::Values("", "/home/ann/talk.md", "żółć 👋.md", "caf\xE9.md",
                                         "\xFF\xFE", "cut \xE2\x82", "cut \xF0\x9F\x91", "\xC0\xAF",
                                         "\xED\xB3\xA9", "\xF4\x90\x80\x80", "👋\xE9👋\xE9\xA9"),
                         byValue);

TEST_P(FilePathBytes, ComeBackAsTheyWere) {
    EXPECT_EQ(nativePath(pathText(GetParam())), QByteArray(GetParam()));
}

TEST(FilePath, IsTheTextItselfWhereItIsUtf8) {
    EXPECT_EQ(pathText("/żółć/👋.md"), u"/żółć/👋.md"_s);
    EXPECT_FALSE(hasForeignBytes(u"/żółć/👋.md"_s));
}

TEST(FilePath, KeepsAForeignByteApart) {
    const QString text = pathText("/caf\xE9/👋");
    EXPECT_EQ(text, u"/caf"_s + QChar(0xDCE9) + u"/👋"_s);
    EXPECT_TRUE(hasForeignBytes(text));
}

TEST(FilePath, BeginsAtTheRootAndKeepsItsDots) {
    EXPECT_EQ(absolutePath(u"/a/../b"_s), u"/a/../b"_s);
    EXPECT_EQ(absolutePath(u"../talk.md"_s), QDir::currentPath() + u"/../talk.md"_s);
}

TEST(FilePath, BeginsInACurrentFolderWhoseNameIsNoText) {
    const QString before = QDir::currentPath();
    const QByteArray folder = QFile::encodeName(QDir::homePath()) + "/\xE9";
    ASSERT_EQ(::mkdir(folder.constData(), 0700), 0);
    ASSERT_EQ(::chdir(folder.constData()), 0);
    EXPECT_EQ(nativePath(absolutePath(u"talk.md"_s)), folder + "/talk.md");
    QDir::setCurrent(before);
}

} // namespace
} // namespace tessaline

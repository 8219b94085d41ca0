#include "settings/TextFile.h"

#include "settings/FilePath.h"
#include "settings/WholeFile.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class TextFileTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"talk.md"_s);
    QString problem;
};

TEST_F(TextFileTest, HoldsTheTextWithOrWithoutItsMark) {
    putFile(path, "\xEF\xBB\xBFtext");
    EXPECT_EQ(readTextFile(path, ByteOrderMark::drop), u"text"_s);
    EXPECT_EQ(readTextFile(path, ByteOrderMark::keep), u"\uFEFFtext"_s);
}

TEST_F(TextFileTest, SaysWhyThereIsNoText) {
    putFile(path, "caf\xE9");
    EXPECT_EQ(readTextFile(path, ByteOrderMark::drop, &problem), std::nullopt);
    EXPECT_EQ(problem, u"Not valid UTF-8 text"_s);
    EXPECT_EQ(readTextFile(folder.path(), ByteOrderMark::drop, &problem), std::nullopt);
    EXPECT_EQ(problem, u"Not a regular file"_s);
}

TEST_F(TextFileTest, MayHaveANameThatIsNoText) {
    putFile(path, "text");
    const QString foreign = folder.path() + pathText("/caf\xE9.md");
    ASSERT_EQ(std::rename(qPrintable(path), nativePath(foreign).constData()), 0);
    EXPECT_EQ(readTextFile(foreign, ByteOrderMark::drop, &problem), u"text"_s);
    EXPECT_FALSE(writeWholeFile(foreign, "other", &problem));
    EXPECT_EQ(problem, u"The name is not valid UTF-8"_s);
}

} // namespace
} // namespace tessaline

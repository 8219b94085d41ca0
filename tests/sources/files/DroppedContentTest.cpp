#include "sources/files/DroppedContent.h"

#include "settings/FilePath.h"
#include "support/PrintQt.h"

#include <QMimeData>
#include <QSysInfo>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

DroppedContent ofUris(const QByteArray& list) {
    QMimeData data;
    data.setData(u"text/uri-list"_s, list);
    EXPECT_TRUE(DroppedContent::isIn(data));
    return DroppedContent::of(data);
}

TEST(DroppedContent, NamesFilesOnThisMachine) {
    const QByteArray host = QSysInfo::machineHostName().toUtf8();
    EXPECT_EQ(ofUris("# from a file manager\r\nfile:///a%20b.md\r\nfile://localhost/c.md\r\n"
                     "file:/d.md\r\nfile://" +
                     host + "/e.md\r\n")
                  .paths,
              (QStringList{u"/a b.md"_s, u"/c.md"_s, u"/d.md"_s, u"/e.md"_s}));
}

TEST(DroppedContent, NamesFilesWhoseNamesAreNoText) {
    EXPECT_EQ(ofUris("file:///caf%E9.md\r\n").paths, QStringList{pathText("/caf\xE9.md")});
}

TEST(DroppedContent, CountsWhatIsElsewhere) {
    const DroppedContent content =
        ofUris("https://example.org/a.md\r\nfile://elsewhere.example/b.md\r\nsmb://x/y\r\n"
               "file:relative\r\nfile:///a%00b\r\n");
    EXPECT_EQ(content.paths, QStringList());
    EXPECT_EQ(content.others, 5);
}

TEST(DroppedContent, IsATextWhereNoFilesAreNamed) {
    QMimeData data;
    data.setText(u"# Dropped"_s);
    EXPECT_TRUE(DroppedContent::isIn(data));
    EXPECT_EQ(DroppedContent::of(data).text, u"# Dropped"_s);
    data.setData(u"text/uri-list"_s, "https://example.org/\r\n");
    EXPECT_EQ(DroppedContent::of(data).text, QString());
}

TEST(DroppedContent, IsInNothingElse) {
    QMimeData data;
    data.setData(u"image/png"_s, "x");
    EXPECT_FALSE(DroppedContent::isIn(data));
}

} // namespace
} // namespace tessaline

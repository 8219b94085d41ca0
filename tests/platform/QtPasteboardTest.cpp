#include "platform/qt/QtPasteboard.h"

#include "support/PrintQt.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QUrl>

#include <gmock/gmock.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

TEST(QtPasteboard, ReturnsTheClipboardsPlainText) {
    QGuiApplication::clipboard()->setText(u"# Überschrift\r\n\n👋"_s);
    EXPECT_EQ(QtPasteboard().plainText(), u"# Überschrift\r\n\n👋"_s);
}

TEST(QtPasteboard, ReturnsNoneWhenTheClipboardIsEmpty) {
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(QtPasteboard().plainText(), std::nullopt);
}

TEST(QtPasteboard, ReturnsNoneForAnImage) {
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::black);
    QGuiApplication::clipboard()->setImage(image);
    EXPECT_EQ(QtPasteboard().plainText(), std::nullopt);
}

TEST(QtPasteboard, ReturnsNoneForFilesWithoutText) {
    auto* files = new QMimeData;
    files->setUrls({QUrl(u"file:///talk.md"_s)});
    QGuiApplication::clipboard()->setMimeData(files);
    EXPECT_EQ(QtPasteboard().plainText(), std::nullopt);
}

} // namespace
} // namespace tessaline

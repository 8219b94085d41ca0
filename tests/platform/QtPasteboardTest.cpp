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

void expectAnswer(const std::optional<QString>& text, const QString& problem) {
    QtPasteboard pasteboard;
    std::optional<QString> said;
    pasteboard.refresh([&](const QString& answer) { said = answer; });
    EXPECT_EQ(said, problem);
    EXPECT_EQ(pasteboard.plainText(), text);
}

void expectText(const QString& text) {
    expectAnswer(text, QString());
}

void expectNoText() {
    expectAnswer(std::nullopt, Pasteboard::noTextProblem());
}

TEST(QtPasteboard, ReturnsTheClipboardsPlainText) {
    QGuiApplication::clipboard()->setText(u"# Überschrift\r\n\n👋"_s);
    expectText(u"# Überschrift\r\n\n👋"_s);
}

TEST(QtPasteboard, ReturnsNoneWhenTheClipboardIsEmpty) {
    QGuiApplication::clipboard()->clear();
    expectNoText();
}

TEST(QtPasteboard, ReturnsATextThatNamesItsEncoding) {
    auto* data = new QMimeData;
    data->setData(u"text/plain;charset=utf-8"_s, "Grüße"_ba);
    QGuiApplication::clipboard()->setMimeData(data);
    expectText(u"Grüße"_s);
}

TEST(QtPasteboard, ReturnsNoneForAnImage) {
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::black);
    QGuiApplication::clipboard()->setImage(image);
    expectNoText();
}

TEST(QtPasteboard, ReturnsNoneForFilesWithoutText) {
    auto* files = new QMimeData;
    files->setUrls({QUrl(u"file:///talk.md"_s)});
    QGuiApplication::clipboard()->setMimeData(files);
    expectNoText();
}

} // namespace
} // namespace tessaline

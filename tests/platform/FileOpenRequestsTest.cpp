#include "platform/qt/FileOpenRequests.h"

#include "support/PrintQt.h"

#include <QApplication>
#include <QFileOpenEvent>
#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

TEST(FileOpenRequests, NameTheFilesThatTheSystemWantsOpened) {
    QStringList opened;
    FileOpenRequests requests([&](const QString& path) { opened += path; });
    qApp->installEventFilter(&requests);
    for (const QUrl& url :
         {QUrl::fromLocalFile(u"/talks/My Talk.md"_s), QUrl(u"https://example.org/talk.md"_s)}) {
        QFileOpenEvent event(url);
        QApplication::sendEvent(qApp, &event);
    }
    EXPECT_EQ(opened, QStringList{u"/talks/My Talk.md"_s});
}

} // namespace
} // namespace tessaline

#include "platform/qt/QtUrlOpener.h"

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

#include <gmock/gmock.h>

#include <vector>

namespace tessaline {
namespace {

/// Stands for the application that the desktop has for a scheme.
class SchemeHandler final : public QObject {
    Q_OBJECT

public:
    SchemeHandler() { QDesktopServices::setUrlHandler(scheme(), this, "open"); }
    ~SchemeHandler() override { QDesktopServices::unsetUrlHandler(scheme()); }

    static QString scheme() { return QStringLiteral("x-apple.systempreferences"); }

    std::vector<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened.push_back(url); }
};

TEST(QtUrlOpener, LeavesAnAddressToTheDesktop) {
    SchemeHandler handler;
    const QUrl url(SchemeHandler::scheme() +
                   QStringLiteral(":com.apple.preference.security?Privacy_Automation"));
    QtUrlOpener().open(url);
    EXPECT_THAT(handler.opened, ::testing::ElementsAre(url));
}

} // namespace
} // namespace tessaline

#include "QtUrlOpenerTest.moc"

#include "platform/qt/QtFolderChooser.h"

#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

class QtFolderChooserTest : public ::testing::Test {
protected:
    QtFolderChooserTest() { QDir(start.path()).mkdir(u"below"_s); }

    /// Asks, and does this with the panel once it is shown.
    std::optional<QString> choose(std::function<void(QFileDialog&)> whileShown) {
        QTimer::singleShot(0, qApp, [whileShown = std::move(whileShown)] {
            auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(panel, nullptr);
            whileShown(*panel);
        });
        return QtFolderChooser().chooseFolder(
            {u"The title"_s, u"Two lines\nof message"_s, start.path()});
    }

    const QTemporaryDir start;
};

TEST_F(QtFolderChooserTest, ShowsTheQuestion) {
    choose([this](QFileDialog& panel) {
        EXPECT_EQ(panel.windowTitle(), u"The title"_s);
        EXPECT_TRUE(panel.isModal());
        EXPECT_EQ(panel.directory().canonicalPath(), QDir(start.path()).canonicalPath());
        const auto* message = panel.findChild<QLabel*>(u"message"_s);
        ASSERT_NE(message, nullptr);
        EXPECT_EQ(message->text(), u"Two lines\nof message"_s);
        EXPECT_TRUE(message->isVisible());
        EXPECT_GE(message->height(), 2 * message->fontMetrics().height());
        EXPECT_TRUE(message->wordWrap());
        for (const QWidget* other : panel.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (other != message && other->isVisible() && !other->isWindow()) {
                EXPECT_GE(other->y(), message->geometry().bottom())
                    << other->objectName().toStdString();
            }
        }
        panel.reject();
    });
}

TEST_F(QtFolderChooserTest, OffersOneExistingFolderAndCreatesNone) {
    choose([](QFileDialog& panel) {
        EXPECT_EQ(panel.fileMode(), QFileDialog::Directory);
        EXPECT_TRUE(panel.testOption(QFileDialog::ShowDirsOnly));
        EXPECT_TRUE(panel.testOption(QFileDialog::ReadOnly));
        panel.reject();
    });
}

TEST_F(QtFolderChooserTest, AnswersWithTheFolderThatTheUserConfirms) {
    const QString below = start.filePath(u"below"_s);
    EXPECT_EQ(choose([&](QFileDialog& panel) {
                  panel.selectFile(below);
                  QMetaObject::invokeMethod(&panel, "accept");
              }),
              below);
}

TEST_F(QtFolderChooserTest, AnswersWithTheFolderThatItOpenedAt) {
    EXPECT_EQ(choose([](QFileDialog& panel) { QMetaObject::invokeMethod(&panel, "accept"); }),
              start.path());
}

TEST_F(QtFolderChooserTest, AnswersWithNothingWhenTheUserCancels) {
    EXPECT_EQ(choose([](QFileDialog& panel) { panel.reject(); }), std::nullopt);
}

} // namespace
} // namespace tessaline

#include "platform/qt/QtFileChooser.h"

#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QApplication>
#include <QFileDialog>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

class QtFileChooserTest : public ::testing::Test {
protected:
    QtFileChooserTest() { putFile(start.filePath(u"talk.md"_s), "# Talk"); }

    void ask() {
        chooser.chooseFile({u"Open"_s, u"Scripts"_s, {u"*.md"_s, u"*.txt"_s}, start.path()},
                           [this](const QString& path) { picked += path; });
    }

    static QList<QFileDialog*> panels() {
        QList<QFileDialog*> found;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            auto* panel = qobject_cast<QFileDialog*>(window);
            if (panel && panel->isVisible()) found += panel;
        }
        return found;
    }

    const QTemporaryDir start;
    QStringList picked;
    QtFileChooser chooser;
};

TEST_F(QtFileChooserTest, ShowsTheQuestionAndWaitsForNobody) {
    ask();
    ASSERT_EQ(panels().size(), 1);
    const QFileDialog& panel = *panels().first();
    EXPECT_EQ(panel.windowTitle(), u"Open"_s);
    EXPECT_FALSE(panel.isModal());
    EXPECT_EQ(panel.fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(panel.directory().canonicalPath(), QDir(start.path()).canonicalPath());
    EXPECT_EQ(panel.nameFilters(), (QStringList{u"Scripts (*.md *.txt)"_s, u"All files (*)"_s}));
    EXPECT_TRUE(picked.isEmpty());
}

TEST_F(QtFileChooserTest, TellsTheFileThatTheUserConfirms) {
    ask();
    panels().first()->selectFile(start.filePath(u"talk.md"_s));
    QMetaObject::invokeMethod(panels().first(), "accept");
    EXPECT_EQ(picked, QStringList{start.filePath(u"talk.md"_s)});
    EXPECT_TRUE(panels().isEmpty());
}

TEST_F(QtFileChooserTest, TellsNothingWhenTheUserCancels) {
    ask();
    panels().first()->reject();
    EXPECT_TRUE(picked.isEmpty());
    ask();
    EXPECT_EQ(panels().size(), 1);
}

TEST_F(QtFileChooserTest, HasOnePanelAtATime) {
    ask();
    ask();
    EXPECT_EQ(panels().size(), 1);
}

} // namespace
} // namespace tessaline

#include "platform/linux/desktop/DesktopFileIcons.h"

#include "platform/linux/desktop/DesktopApplicationLookup.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

/// Makes what lies in the folder "theme" the desktop's theme, for as long as this lives.
class ChosenTheme {
public:
    explicit ChosenTheme(const QTemporaryDir& data) {
        putFile(data.filePath(u"theme/chosen/index.theme"_s),
                "[Icon Theme]\nName=chosen\nDirectories=48x48/apps\n[48x48/apps]\nSize=48\n");
        QIcon::setThemeSearchPaths({data.filePath(u"theme"_s)});
        QIcon::setThemeName(u"chosen"_s);
    }
    ~ChosenTheme() {
        QIcon::setThemeSearchPaths(previousPaths);
        QIcon::setThemeName(previousTheme);
    }
    ChosenTheme(const ChosenTheme&) = delete;
    ChosenTheme& operator=(const ChosenTheme&) = delete;

private:
    const QStringList previousPaths = QIcon::themeSearchPaths();
    const QString previousTheme = QIcon::themeName();
};

class DesktopFileIconsTest : public ::testing::Test {
protected:
    /// Creates an entry with this icon; returns the program that it starts.
    QString putApplication(const QString& icon) const {
        const QString program = data.filePath(u"obsidian"_s);
        putFile(program, "");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
        QDir().mkpath(data.filePath(u"applications"_s));
        putFile(data.filePath(u"applications/obsidian.desktop"_s),
                "[Desktop Entry]\nType=Application\nExec=" + program.toUtf8() +
                    " %U\nIcon=" + icon.toUtf8() + '\n');
        return program;
    }

    /// Creates a picture of one colour.
    void putPicture(const QString& name, const QColor& color, int size = 64) const {
        const QString path = data.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QImage image(size, size, QImage::Format_RGB32);
        image.fill(color);
        ASSERT_TRUE(image.save(path));
    }

    static QColor colorOf(const QIcon& icon) {
        return icon.isNull() ? QColor() : icon.pixmap(32, 32).toImage().pixelColor(5, 5);
    }

    const QTemporaryDir data;
    const DesktopFileIcons icons{DesktopEntries({data.path()})};
};

TEST_F(DesktopFileIconsTest, ComeFromTheFileThatTheEntryNames) {
    putPicture(u"somewhere/picture.png"_s, Qt::red);
    const QString program = putApplication(data.filePath(u"somewhere/picture.png"_s));
    EXPECT_EQ(colorOf(icons.iconForFile(program)), QColor(Qt::red));
}

TEST_F(DesktopFileIconsTest, ComeFromTheThemeFoldersBesideTheEntry) {
    putPicture(u"icons/hicolor/64x64/apps/tessaline-test-icon.png"_s, Qt::green);
    const QString program = putApplication(u"tessaline-test-icon"_s);
    EXPECT_EQ(colorOf(icons.iconForFile(program)), QColor(Qt::green));
    EXPECT_EQ(colorOf(icons.iconForFile(data.filePath(u"applications/obsidian.desktop"_s))),
              QColor(Qt::green));
}

TEST_F(DesktopFileIconsTest, ComeFromTheFolderOfPictures) {
    putPicture(u"pixmaps/tessaline-test-icon.png"_s, Qt::blue);
    EXPECT_EQ(colorOf(icons.iconForFile(putApplication(u"tessaline-test-icon"_s))),
              QColor(Qt::blue));
}

TEST_F(DesktopFileIconsTest, ComeFromTheDesktopsThemeFirst) {
    putPicture(u"theme/chosen/48x48/apps/tessaline-test-icon.png"_s, Qt::yellow, 48);
    putPicture(u"pixmaps/tessaline-test-icon.png"_s, Qt::blue);
    const ChosenTheme theme(data);
    EXPECT_EQ(colorOf(icons.iconForFile(putApplication(u"tessaline-test-icon"_s))),
              QColor(Qt::yellow));
}

TEST_F(DesktopFileIconsTest, AreThoseOfTheirKindForOtherFilesThatAreThere) {
    putPicture(u"theme/chosen/48x48/apps/text-plain.png"_s, Qt::yellow, 48);
    const ChosenTheme theme(data);
    putFile(data.filePath(u"note.txt"_s), "text");
    EXPECT_EQ(colorOf(icons.iconForFile(data.filePath(u"note.txt"_s))), QColor(Qt::yellow));
    EXPECT_TRUE(icons.iconForFile(data.filePath(u"missing.txt"_s)).isNull());
}

TEST_F(DesktopFileIconsTest, HaveSeveralSizes) {
    putPicture(u"icons/hicolor/16x16/apps/tessaline-test-icon.png"_s, Qt::red, 16);
    putPicture(u"icons/hicolor/256x256/apps/tessaline-test-icon.png"_s, Qt::green, 256);
    const QIcon icon = icons.iconForFile(putApplication(u"tessaline-test-icon"_s));
    EXPECT_EQ(icon.availableSizes().size(), 2);
    EXPECT_EQ(icon.pixmap(16, 16).toImage().pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(icon.pixmap(128, 128).toImage().pixelColor(1, 1), QColor(Qt::green));
}

TEST_F(DesktopFileIconsTest, AreNullWithoutAPicture) {
    EXPECT_TRUE(icons.iconForFile(putApplication(u"tessaline-test-icon"_s)).isNull());
    EXPECT_TRUE(icons.iconForFile(putApplication(u""_s)).isNull());
    EXPECT_TRUE(icons.iconForFile(putApplication(u"../obsidian"_s)).isNull());
    EXPECT_TRUE(icons.iconForFile(data.filePath(u"missing"_s)).isNull());
}

TEST_F(DesktopFileIconsTest, ShowTheObsidianThatTheLookupFinds) {
    putPicture(u"pixmaps/tessaline-test-icon.png"_s, Qt::blue);
    const QString program = putApplication(u"tessaline-test-icon"_s);
    const QByteArray previous = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    const auto path = DesktopApplicationLookup(DesktopEntries::installed())
                          .workspaceApplicationPath(u"md.obsidian"_s);
    const DesktopFileIcons systemIcons(DesktopEntries::installed());
    qputenv("XDG_DATA_HOME", previous);
    EXPECT_EQ(path, program);
    EXPECT_EQ(colorOf(systemIcons.iconForFile(program)), QColor(Qt::blue));
}

} // namespace
} // namespace tessaline

#include "platform/qt/QtUserDefaults.h"

#include "support/TestFiles.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class QtUserDefaultsTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"defaults.conf"_s);
    const QString key = u"app.example.Program.telemetry.userId"_s;
};

TEST_F(QtUserDefaultsTest, HaveNothingAtFirst) {
    EXPECT_EQ(QtUserDefaults(path).string(key), std::nullopt);
}

TEST_F(QtUserDefaultsTest, KeepATextFromRunToRun) {
    QtUserDefaults(path).setString(key, u"Größe, \"1\" = a;b\n"_s);
    EXPECT_EQ(QtUserDefaults(path).string(key), u"Größe, \"1\" = a;b\n"_s);
}

TEST_F(QtUserDefaultsTest, HaveATextInItsFileAtOnce) {
    QtUserDefaults defaults(path);
    defaults.setString(key, u"first"_s);
    EXPECT_TRUE(fileBytes(path).contains("first"));
    defaults.setString(key, u"second"_s);
    EXPECT_FALSE(fileBytes(path).contains("first"));
    EXPECT_EQ(defaults.string(key), u"second"_s);
}

TEST_F(QtUserDefaultsTest, KeepAKeyInGroupsNamedByItsParts) {
    QtUserDefaults(path).setString(key, u"text"_s);
    const QSettings file(path, QSettings::IniFormat);
    EXPECT_EQ(file.value(u"app/example/Program/telemetry/userId"_s).toString(), u"text"_s);
}

TEST_F(QtUserDefaultsTest, KeepKeysApart) {
    QtUserDefaults defaults(path);
    defaults.setString(key, u"one"_s);
    defaults.setString(u"another"_s, u"two"_s);
    EXPECT_EQ(defaults.string(key), u"one"_s);
    EXPECT_EQ(defaults.string(u"another"_s), u"two"_s);
}

TEST_F(QtUserDefaultsTest, ForgetWhatIsDeletedWithTheFile) {
    QtUserDefaults defaults(path);
    defaults.setString(key, u"text"_s);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(QtUserDefaults(path).string(key), std::nullopt);
}

TEST_F(QtUserDefaultsTest, SurviveAFileThatCannotBeWritten) {
    QtUserDefaults defaults(folder.path());
    defaults.setString(key, u"text"_s);
    EXPECT_EQ(defaults.string(key), std::nullopt);
}

TEST_F(QtUserDefaultsTest, AreTheUsersOwnUnlessAFileIsNamed) {
    QtUserDefaults().setString(key, u"text"_s);
    EXPECT_EQ(QtUserDefaults().string(key), u"text"_s);
}

} // namespace
} // namespace tessaline

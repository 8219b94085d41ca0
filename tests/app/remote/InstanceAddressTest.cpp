#include "app/remote/InstanceAddress.h"

#include "app/remote/InstanceLock.h"
#include "settings/FilePath.h"
#include "support/CaseName.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class InstanceAddressTest : public testing::Test {
protected:
    InstanceAddressTest() {
        runtimeFolder = folder.filePath(u"run"_s);
        temporaryFolder = folder.filePath(u"tmp"_s);
        makeFolder(runtimeFolder, 0700);
        makeFolder(temporaryFolder, 0777);
        environment = {{"XDG_RUNTIME_DIR", runtimeFolder}, {"DISPLAY", u":7"_s}};
    }

    static void makeFolder(const QString& path, mode_t mode) {
        ASSERT_TRUE(QDir().mkpath(path));
        ASSERT_EQ(::chmod(qPrintable(path), mode), 0);
    }

    std::optional<InstanceAddress> address() {
        return InstanceAddress::ofSession(
            [this](const char* name) {
                const auto entry = environment.find(name);
                return entry == environment.end() ? QString() : entry->second;
            },
            temporaryFolder, &problem);
    }

    QString fallbackFolder() const { return temporaryFolder + u"/tessaline-%1"_s.arg(::geteuid()); }

    QTemporaryDir folder{QDir::tempPath() + u"/t-XXXXXX"_s};
    QString runtimeFolder;
    QString temporaryFolder;
    std::map<std::string, QString> environment;
    QString problem;
};

TEST_F(InstanceAddressTest, IsInTheRuntimeFolder) {
    ASSERT_TRUE(address());
    EXPECT_EQ(address()->socketPath(), runtimeFolder + u"/tessaline/:7.socket"_s);
    EXPECT_EQ(address()->lockPath(), runtimeFolder + u"/tessaline/:7.lock"_s);
    struct stat status {};
    ASSERT_EQ(::stat(qPrintable(address()->folder), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
}

TEST_F(InstanceAddressTest, IsInTheTemporaryFolderWithoutARuntimeFolder) {
    environment.erase("XDG_RUNTIME_DIR");
    ASSERT_TRUE(address());
    EXPECT_EQ(address()->folder, fallbackFolder());
}

TEST_F(InstanceAddressTest, TrustsNoRuntimeFolderThatOthersCanEnter) {
    makeFolder(runtimeFolder, 0755);
    ASSERT_TRUE(address());
    EXPECT_EQ(address()->folder, fallbackFolder());
    EXPECT_TRUE(QDir(runtimeFolder).isEmpty());
}

TEST_F(InstanceAddressTest, TrustsNoRuntimeFolderThatIsRelativeOrCannotBeHad) {
    for (const auto& path : {u"run"_s, runtimeFolder + u"/missing/run"_s}) {
        environment["XDG_RUNTIME_DIR"] = path;
        ASSERT_TRUE(address());
        EXPECT_EQ(address()->folder, fallbackFolder());
    }
}

TEST_F(InstanceAddressTest, MakesTheRuntimeFolderBeforeOthersDo) {
    environment["XDG_RUNTIME_DIR"] = runtimeFolder + u"/missing"_s;
    ASSERT_TRUE(address());
    EXPECT_EQ(address()->folder, runtimeFolder + u"/missing/tessaline"_s);
    struct stat status {};
    ASSERT_EQ(::stat(qPrintable(runtimeFolder + u"/missing"_s), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
}

TEST_F(InstanceAddressTest, StaysWhereTheRunningOneIsWhenTheRuntimeFolderComesLater) {
    environment["XDG_RUNTIME_DIR"] = runtimeFolder + u"/later/run"_s;
    const auto first = address();
    ASSERT_TRUE(first);
    auto lock = InstanceLock::take(first->lockPath(), &problem);
    ASSERT_TRUE(lock);
    makeFolder(runtimeFolder + u"/later"_s, 0700);
    EXPECT_EQ(address()->folder, first->folder);
    lock.reset();
    EXPECT_EQ(address()->folder, runtimeFolder + u"/later/run/tessaline"_s);
}

TEST_F(InstanceAddressTest, HasOneAnswerForARuntimeFolderWhoseNameIsNoText) {
    const QString foreign = folder.path() + u'/' + pathText("run-\xE9");
    environment["XDG_RUNTIME_DIR"] = foreign;
    ASSERT_EQ(::mkdir(nativePath(foreign).constData(), 0700), 0);
    ASSERT_TRUE(address());
    EXPECT_EQ(address()->folder, fallbackFolder());
    makeFolder(folder.filePath(u"run-\uFFFD"_s), 0700); // what the toolkit may take it for
    EXPECT_EQ(address()->folder, fallbackFolder());
}

TEST_F(InstanceAddressTest, TrustsNoFolderThatOthersCanEnter) {
    environment.erase("XDG_RUNTIME_DIR");
    makeFolder(fallbackFolder(), 0711);
    EXPECT_FALSE(address());
    EXPECT_EQ(problem, fallbackFolder() + u" cannot be used as a private folder"_s);
}

TEST_F(InstanceAddressTest, TrustsNoLinkInTheFoldersPlace) {
    environment.erase("XDG_RUNTIME_DIR");
    makeFolder(folder.filePath(u"theirs"_s), 0700);
    ASSERT_TRUE(QFile::link(folder.filePath(u"theirs"_s), fallbackFolder()));
    EXPECT_FALSE(address());
}

TEST_F(InstanceAddressTest, TrustsNoFolderOfAnotherUser) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can make a folder somebody else's";
    environment.erase("XDG_RUNTIME_DIR");
    makeFolder(fallbackFolder(), 0700);
    ASSERT_EQ(::chown(qPrintable(fallbackFolder()), 4711, 4711), 0);
    EXPECT_FALSE(address());
}

TEST_F(InstanceAddressTest, HasRoomForTheSocketHoweverLongThePathsAre) {
    const QString deep = runtimeFolder + u'/' + QString(90, u'd');
    makeFolder(deep, 0700);
    environment["XDG_RUNTIME_DIR"] = deep;
    ASSERT_TRUE(address());
    EXPECT_EQ(address()->folder, fallbackFolder());
    EXPECT_LT(address()->socketPath().size(), qsizetype(sizeof(sockaddr_un::sun_path)));
}

struct DisplayCase {
    const char* display;
    const char* wayland;
    QString name;
};

class InstanceDisplay : public testing::TestWithParam<DisplayCase> {};

INSTANTIATE_TEST_SUITE_P(
    Names, InstanceDisplay,
    testing::Values(DisplayCase{":0", "", u":0"_s}, DisplayCase{":0.1", "", u":0"_s},
                    DisplayCase{":0", "wayland-1", u":0"_s},
                    DisplayCase{"host.example:10.0", "", u"host.example:10"_s},
                    DisplayCase{"", "wayland-1", u"wayland-1"_s},
                    DisplayCase{"", "/run/user/1/wayland-0", u"%2Frun%2Fuser%2F1%2Fwayland-0"_s},
                    DisplayCase{"", "", u"main"_s}),
    byMember<&DisplayCase::name>);

TEST_P(InstanceDisplay, IsPartOfTheAddress) {
    QTemporaryDir folder;
    QString problem;
    const auto address = InstanceAddress::ofSession(
        [](const char* name) {
            if (qstrcmp(name, "DISPLAY") == 0) return QString::fromLatin1(GetParam().display);
            if (qstrcmp(name, "WAYLAND_DISPLAY") == 0)
                return QString::fromLatin1(GetParam().wayland);
            return QString();
        },
        folder.path(), &problem);
    ASSERT_TRUE(address);
    EXPECT_EQ(address->display, GetParam().name);
}

TEST_F(InstanceAddressTest, ShortensALongDisplayNameToOneThatIsItsOwn) {
    environment["DISPLAY"] = QString(60, u'x') + u":1"_s;
    const QString first = address()->display;
    environment["DISPLAY"] = QString(60, u'x') + u":2"_s;
    EXPECT_NE(address()->display, first);
    EXPECT_EQ(first.size(), 32);
}

} // namespace
} // namespace tessaline

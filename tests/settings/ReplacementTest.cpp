#include "settings/Replacement.h"

#include "support/TestFiles.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class Replacement : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"file [1]*"_s);

    void SetUp() override { putFile(path, "old"); }

    /// Everything beside the file.
    QStringList others() const {
        QStringList found =
            QDir(folder.path())
                .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
        found.removeOne(QFileInfo(path).fileName());
        return found;
    }

    static void makeOlder(const QString& name, int seconds) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const QDateTime time = QDateTime::currentDateTimeUtc().addSecs(-seconds);
        ASSERT_TRUE(file.setFileTime(time, QFile::FileModificationTime));
    }

    QString putBeside(const QString& name, int age) const {
        QString place = folder.filePath(name);
        putFile(place, "part");
        makeOlder(place, age);
        return place;
    }

    /// A process that the system ends when it has written a part.
    [[noreturn]] void replaceInPart() const {
        const rlimit noDump{0, 0};
        const rlimit few{4096, 4096};
        if (::setrlimit(RLIMIT_CORE, &noDump) == 0 && ::setrlimit(RLIMIT_FSIZE, &few) == 0)
            replaceFile(path, inOnePiece(QByteArray(100'000, 'x')));
        ::_exit(2);
    }

    void replaceUntilKilled() const {
        EXPECT_EXIT(replaceInPart(), testing::KilledBySignal(SIGXFSZ), "");
    }

    static constexpr int old = 11 * 60;
    static constexpr int young = 9 * 60;
};

TEST_F(Replacement, RemovesWhatAKilledOneLeftBehindAWhileAgo) {
    replaceUntilKilled();
    EXPECT_EQ(fileBytes(path), "old");
    ASSERT_EQ(others().size(), 1);
    makeOlder(folder.filePath(others().front()), old);
    EXPECT_EQ(replaceFile(path, inOnePiece("new")), QString());
    EXPECT_EQ(fileBytes(path), "new");
    EXPECT_EQ(others(), QStringList());
}

TEST_F(Replacement, KeepsWhatAnotherOneMayStillBeWriting) {
    replaceUntilKilled();
    const QStringList left = others();
    ASSERT_EQ(left.size(), 1);
    makeOlder(folder.filePath(left.front()), young);
    EXPECT_EQ(replaceFile(path, inOnePiece("new")), QString());
    EXPECT_EQ(others(), left);
}

TEST_F(Replacement, KeepsAllFilesThatAreNotItsOwn) {
    const QStringList foreign{
        u"file [1]*.backup"_s,
        u"file [1]*.aBcDeF"_s,
        u"file [1]*.tessaline-0123abc"_s,
        u"file [1]*.tessaline-0123abcde"_s,
        u"file [1]*.tessaline-0123ABCD"_s,
        u"file [1]*.tessaline-0123abcg"_s,
        u"file [1]*.tessaline.0123abcd"_s,
        u"my file [1]*.tessaline-0123abcd"_s,
        u"file 1.tessaline-0123abcd"_s,
        u".tessaline-0123abcd"_s,
    };
    for (const QString& name : foreign)
        putBeside(name, old);
    EXPECT_EQ(replaceFile(path, inOnePiece("new")), QString());
    QStringList kept = foreign;
    kept.sort();
    QStringList found = others();
    found.sort();
    EXPECT_EQ(found, kept);
}

TEST_F(Replacement, KnowsEveryDigitOfItsOwnNames) {
    putBeside(u"file [1]*.tessaline-01234567"_s, old);
    putBeside(u"file [1]*.tessaline-89abcdef"_s, old);
    EXPECT_EQ(replaceFile(path, inOnePiece("new")), QString());
    EXPECT_EQ(others(), QStringList());
}

TEST_F(Replacement, KeepsALinkWhateverItsName) {
    const QString outside = putBeside(u"outside"_s, old);
    const QString link = path + u".tessaline-01234567"_s;
    ASSERT_TRUE(QFile::link(outside, link));
    EXPECT_EQ(replaceFile(path, inOnePiece("new")), QString());
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(QFileInfo::exists(outside));
}

TEST_F(Replacement, KeepsTheFilesOfOtherUsers) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can give files away";
    const QString foreign = putBeside(u"file [1]*.tessaline-01234567"_s, old);
    ASSERT_EQ(::chown(QFile::encodeName(foreign).constData(), 65534, 65534), 0);
    EXPECT_EQ(replaceFile(path, inOnePiece("new")), QString());
    EXPECT_TRUE(QFileInfo::exists(foreign));
}

TEST_F(Replacement, RemovesWhatIsLeftBesideTheFileThatALinkLeadsTo) {
    const QTemporaryDir elsewhere;
    const QString link = elsewhere.filePath(u"link"_s);
    ASSERT_TRUE(QFile::link(path, link));
    putBeside(u"file [1]*.tessaline-01234567"_s, old);
    EXPECT_EQ(replaceFile(link, inOnePiece("new")), QString());
    EXPECT_EQ(fileBytes(path), "new");
    EXPECT_EQ(others(), QStringList());
}

TEST_F(Replacement, RefusesAnEmptyPath) {
    EXPECT_EQ(replaceFile(QString(), inOnePiece("new")), u"No file is named"_s);
}

TEST_F(Replacement, LeavesThePermissionsOfANewFileToTheUsersMask) {
    const QString fresh = folder.filePath(u"fresh"_s);
    const mode_t mask = ::umask(027);
    EXPECT_EQ(replaceFile(fresh, inOnePiece("new")), QString());
    ::umask(mask);
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(fresh).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640);
}

} // namespace
} // namespace tessaline

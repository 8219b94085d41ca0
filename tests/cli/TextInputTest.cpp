#include "cli/TextInput.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class TextInput : public testing::Test {
protected:
    /// Why the path cannot be read; fails the test when it can.
    QString failure() const {
        QString error;
        EXPECT_EQ(readTextInput(path, &error), std::nullopt);
        return error;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"talk.md"_s);
};

TEST_F(TextInput, ReadsTheTextAsItIs) {
    putFile(path, QByteArray("a\r\nb\0 \xF0\x9F\x91\x8B\n", 11));
    EXPECT_EQ(readTextInput(path, nullptr), QString::fromUtf8("a\r\nb\0 👋\n", 11));
}

TEST_F(TextInput, DropsAByteOrderMarkAtTheStartOnly) {
    putFile(path, "\xEF\xBB\xBF"
                  "a\xEF\xBB\xBF");
    EXPECT_EQ(readTextInput(path, nullptr), u"a\uFEFF"_s);
}

TEST_F(TextInput, ReadsAnEmptyFile) {
    putFile(path, "");
    EXPECT_EQ(readTextInput(path, nullptr), u""_s);
}

TEST_F(TextInput, ReadsMoreThanOneBufferFull) {
    putFile(path, QByteArray(1'000'000, 'x'));
    EXPECT_EQ(readTextInput(path, nullptr), QString(1'000'000, u'x'));
}

TEST_F(TextInput, ReadsAFifoToItsEnd) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    std::thread writer([this] { putFile(path, QByteArray(300'000, 'y')); });
    EXPECT_EQ(readTextInput(path, nullptr), QString(300'000, u'y'));
    writer.join();
}

TEST_F(TextInput, TellsThatThereIsNoFile) {
    EXPECT_EQ(failure(), u"cannot read "_s + path + u": No such file or directory"_s);
    path.clear();
    EXPECT_EQ(failure(), u"cannot read : No such file or directory"_s);
}

TEST_F(TextInput, TellsThatTheFileIsAFolder) {
    path = folder.path();
    EXPECT_EQ(failure(), u"cannot read "_s + path + u": Is a directory"_s);
}

TEST_F(TextInput, TellsThatTheFileMustNotBeRead) {
    if (::geteuid() == 0) GTEST_SKIP() << "root may read everything";
    putFile(path, "text");
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0), 0);
    EXPECT_EQ(failure(), u"cannot read "_s + path + u": Permission denied"_s);
}

class TextInputInvalid : public TextInput, public testing::WithParamInterface<const char*> {};

TEST_P(TextInputInvalid, IsRefusedWhole) {
    putFile(path, GetParam());
    EXPECT_EQ(failure(), u"cannot read "_s + path + u": Not valid UTF-8 text"_s);
}

INSTANTIATE_TEST_SUITE_P(Bytes, TextInputInvalid,
                         testing::Values("caf\xE9", "\xFF\xFEh", "cut \xE2\x82", "\xC0\xAF",
                                         "\xED\xA0\x80", "\xF4\x90\x80\x80"),
                         byValue);

/// Gives the process another standard input while it lives.
class ReplacedStandardInput {
public:
    explicit ReplacedStandardInput(const QString& path) : saved(::dup(STDIN_FILENO)) {
        const int replacement = ::open(QFile::encodeName(path).constData(), O_RDONLY);
        ::dup2(replacement, STDIN_FILENO);
        ::close(replacement);
    }
    ~ReplacedStandardInput() {
        ::dup2(saved, STDIN_FILENO);
        ::close(saved);
    }

private:
    int saved;
};

TEST_F(TextInput, ReadsStandardInputForADash) {
    putFile(path, "\xEF\xBB\xBFtext");
    const ReplacedStandardInput input(path);
    EXPECT_EQ(readTextInput(u"-"_s, nullptr), u"text"_s);
}

TEST_F(TextInput, NamesStandardInputInItsErrors) {
    const ReplacedStandardInput input(folder.path());
    path = u"-"_s;
    EXPECT_EQ(failure(), u"cannot read standard input: Is a directory"_s);
}

} // namespace
} // namespace tessaline

#include "sources/ContentFile.h"

#include "support/CaseName.h"
#include "support/NotAFile.h"
#include "support/OrdinaryUser.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

class ContentFileTest : public ::testing::Test {
protected:
    ContentResult read(ByteOrderMark mark = ByteOrderMark::drop) const {
        return readContentFile(path, mark);
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"content.md"_s);
};

template <typename Parameter>
class ContentFileTestWith : public ContentFileTest,
                            public ::testing::WithParamInterface<Parameter> {};

struct ValidText {
    const char* name;
    QByteArray bytes;
    QString text;
};

void PrintTo(const ValidText& valid, std::ostream* out) {
    *out << valid.name;
}

class ContentFileValidText : public ContentFileTestWith<ValidText> {};

TEST_P(ContentFileValidText, IsReadAsItIs) {
    putFile(path, GetParam().bytes);
    EXPECT_EQ(std::get<QString>(read()), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ContentFileValidText,
    ::testing::Values(ValidText{"Empty", "", u""_s},
                      ValidText{"LineEnds", "a\r\nb\n\n", u"a\r\nb\n\n"_s},
                      ValidText{"Nul", QByteArray("a\0b", 3), u"a\0b"_s},
                      ValidText{"TwoToFourBytes", "\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x91\x8B",
                                u"é € 👋"_s},
                      ValidText{"ReplacementCharacter", "\xEF\xBF\xBD", u"\uFFFD"_s},
                      ValidText{"Noncharacter", "\xEF\xBF\xBF", QString(QChar(0xFFFF))},
                      ValidText{"LastCodePoint", "\xF4\x8F\xBF\xBF", u"\U0010FFFF"_s},
                      ValidText{"MarkInTheMiddle", "a\xEF\xBB\xBF", u"a\uFEFF"_s}),
    byValue);

struct InvalidText {
    const char* name;
    QByteArray bytes;
};

void PrintTo(const InvalidText& invalid, std::ostream* out) {
    *out << invalid.name;
}

class ContentFileInvalidText : public ContentFileTestWith<InvalidText> {};

TEST_P(ContentFileInvalidText, IsNotReadable) {
    putFile(path, GetParam().bytes);
    EXPECT_EQ(std::get<ContentSourceError>(read()), ContentSourceError::fileNotReadable(path));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ContentFileInvalidText,
    ::testing::Values(
        InvalidText{"NeverInUtf8", "\xFF"}, InvalidText{"LoneContinuation", "a\x80z"},
        InvalidText{"OverlongInTwo", "\xC0\xAF"}, InvalidText{"OverlongInThree", "\xE0\x80\xAF"},
        InvalidText{"Surrogate", "\xED\xA0\x80"},
        InvalidText{"SurrogatePair", "\xED\xA0\xBD\xED\xB1\x8B"},
        InvalidText{"AboveTheLastCodePoint", "\xF4\x90\x80\x80"},
        InvalidText{"FiveBytes", "\xF8\x88\x80\x80\x80"},
        InvalidText{"CutOffInTwo", "cut off \xC3"},
        InvalidText{"CutOffInThree", "cut off \xE2\x82"},
        InvalidText{"CutOffInFour", "cut off \xF0\x9F\x91"},
        InvalidText{"AfterARunOfAscii",
                    "a long enough run of ASCII before the bad byte \xFE and after it as well"}),
    byValue);

class ContentFileReplaced : public ContentFileTestWith<NotAFile> {};

TEST_P(ContentFileReplaced, HasNoText) {
    placeNotAFile(GetParam(), path);
    const auto expected = GetParam() == NotAFile::danglingLink
                              ? ContentSourceError::noContent()
                              : ContentSourceError::fileNotReadable(path);
    EXPECT_EQ(std::get<ContentSourceError>(read()), expected);
}

INSTANTIATE_TEST_SUITE_P(By, ContentFileReplaced, ::testing::ValuesIn(allNotAFile), byValue);

TEST_F(ContentFileTest, HasNoContentWhenThereIsNone) {
    EXPECT_EQ(std::get<ContentSourceError>(read()), ContentSourceError::noContent());
}

constexpr auto openToAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                           QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;

// Permissions do not bind the superuser, hence the child process that gives such powers up.
TEST_F(ContentFileTest, IsNotReadableWithoutPermission) {
    putFile(path, "secret");
    ASSERT_TRUE(QFile::setPermissions(path, {}));
    ASSERT_TRUE(QFile::setPermissions(folder.path(), openToAll));
    EXPECT_EXIT(
        {
            becomeOrdinaryUser();
            const auto result = read();
            const auto* error = std::get_if<ContentSourceError>(&result);
            ::_exit(error && *error == ContentSourceError::fileNotReadable(path) ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST_F(ContentFileTest, FollowsALink) {
    putFile(folder.filePath(u"elsewhere.md"_s), "linked");
    ASSERT_TRUE(QFile::link(folder.filePath(u"elsewhere.md"_s), path));
    EXPECT_EQ(std::get<QString>(read()), u"linked"_s);
}

TEST_F(ContentFileTest, IsReadAgainOnlyWhenItChanged) {
    const QString known = u"é € 👋\n"_s;
    putFile(path, known.toUtf8());
    EXPECT_EQ(readChangedContentFile(path, known), std::nullopt);
    putFile(path, "\xEF\xBB\xBF" + known.toUtf8());
    EXPECT_EQ(readChangedContentFile(path, known), std::nullopt);
    for (const QString& other : {u"é € 👌\n"_s, u"é € 👋"_s, u"é € 👋\n\n"_s, u""_s}) {
        putFile(path, "\xEF\xBB\xBF" + other.toUtf8());
        EXPECT_EQ(readChangedContentFile(path, known), other);
    }
}

TEST_F(ContentFileTest, DidNotChangeIntoWhatCannotBeRead) {
    putFile(path, "\xFF");
    EXPECT_EQ(readChangedContentFile(path, u"a"_s), std::nullopt);
    EXPECT_EQ(readChangedContentFile(path, u"\uFFFD"_s), std::nullopt);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(readChangedContentFile(path, u"a"_s), std::nullopt);
}

TEST_F(ContentFileTest, DropsOrKeepsAByteOrderMark) {
    putFile(path, "\xEF\xBB\xBFtext");
    EXPECT_EQ(std::get<QString>(read(ByteOrderMark::drop)), u"text"_s);
    EXPECT_EQ(std::get<QString>(read(ByteOrderMark::keep)), u"\uFEFFtext"_s);
}

} // namespace
} // namespace tessaline

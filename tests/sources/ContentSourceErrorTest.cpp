#include "sources/ContentSourceError.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

using Kind = ContentSourceError::Kind;

struct Description {
    const char* name;
    ContentSourceError error;
    Kind kind;
    QString text;
};

void PrintTo(const Description& description, std::ostream* out) {
    *out << description.name;
}

class ContentSourceErrorDescription : public ::testing::TestWithParam<Description> {};

TEST_P(ContentSourceErrorDescription, NamesTheKindAndItsSubject) {
    EXPECT_EQ(GetParam().error.kind(), GetParam().kind);
    EXPECT_EQ(GetParam().error.errorDescription(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    AllKinds, ContentSourceErrorDescription,
    ::testing::Values(Description{"fileNotFound", ContentSourceError::fileNotFound(u"/a b.md"_s),
                                  Kind::fileNotFound, u"File not found: /a b.md"_s},
                      Description{"fileNotReadable",
                                  ContentSourceError::fileNotReadable(u"/a b.md"_s),
                                  Kind::fileNotReadable, u"Cannot read file: /a b.md"_s},
                      Description{"scriptError", ContentSourceError::scriptError(u"no %1 note"_s),
                                  Kind::scriptError, u"Script error: no %1 note"_s},
                      Description{"noContent", ContentSourceError::noContent(), Kind::noContent,
                                  u"No content available"_s},
                      Description{"permissionDenied", ContentSourceError::permissionDenied(),
                                  Kind::permissionDenied, u"Permission denied"_s},
                      Description{"notConfigured", ContentSourceError::notConfigured(),
                                  Kind::notConfigured, u"Source not configured"_s}),
    byMember<&Description::name>);

TEST(ContentSourceError, ComparesKindAndSubject) {
    const auto error = ContentSourceError::fileNotFound(u"/a"_s);
    EXPECT_EQ(error, ContentSourceError::fileNotFound(u"/a"_s));
    EXPECT_NE(error, ContentSourceError::fileNotFound(u"/b"_s));
    EXPECT_NE(error, ContentSourceError::fileNotReadable(u"/a"_s));
}

} // namespace
} // namespace tessaline

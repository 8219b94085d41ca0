#include "settings/EnumerationCodec.h"

#include "settings/JsonReader.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::Pointee;

/// Each value is written as its raw string and read back from it.
template <typename Enumeration, std::size_t size>
void expectTexts(const std::array<Enumeration, size>& values) {
    for (const Enumeration value : values) {
        const QString raw = rawValue(value);
        EXPECT_THAT(encode(value).template as<QString>(), Pointee(raw));
        Enumeration read = values.front() == value ? values.back() : values.front();
        EXPECT_TRUE(decode(parseJson('"' + raw.toUtf8() + '"').value(), read));
        EXPECT_EQ(read, value);
    }
}

TEST(EnumerationCodec, KeepsEveryValueAsItsRawString) {
    expectTexts(allSourceTypes);
    expectTexts(allSourceModes);
    expectTexts(allScrollRates);
}

TEST(EnumerationCodec, TakesNothingElse) {
    for (const char* json : {R"("File")", R"("")", "0", "null", R"(["file"])", R"({"file": 1})"}) {
        const JsonValue value = parseJson(json).value();
        auto source = SourceType::appleNotes;
        auto mode = SourceMode::clipboard;
        auto rate = ScrollRate::fast;
        EXPECT_FALSE(decode(value, source)) << json;
        EXPECT_FALSE(decode(value, mode)) << json;
        EXPECT_FALSE(decode(value, rate)) << json;
        EXPECT_EQ(source, SourceType::appleNotes);
        EXPECT_EQ(mode, SourceMode::clipboard);
        EXPECT_EQ(rate, ScrollRate::fast);
    }
}

} // namespace
} // namespace tessaline

#include "export/JsonRendering.h"

#include "export/MemorySink.h"
#include "render/markdown/MarkdownRenderer.h"

#include <QString>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using Json = nlohmann::ordered_json;

QByteArray jsonText(const StyledText& styled, qsizetype wordCount = 0) {
    MemorySink sink;
    EXPECT_TRUE(writeJson(styled, wordCount, sink));
    return sink.bytes;
}

Json jsonOf(QStringView markdown) {
    return Json::parse(jsonText(MarkdownRenderer(16).render(markdown)).toStdString());
}

TEST(JsonRendering, OfAnEmptyTextHasNoRuns) {
    EXPECT_EQ(jsonText({}), "{\n  \"text\": \"\",\n  \"wordCount\": 0,\n  \"runs\": []\n}\n");
}

TEST(JsonRendering, HoldsTheWordCountThatItIsGiven) {
    EXPECT_EQ(Json::parse(jsonText({}, 100000).toStdString())["wordCount"].dump(), "100000");
}

TEST(JsonRendering, WritesEveryAttributeInOrder) {
    StyledText styled{.text = u"ab"_s, .runs = {{0, 2, 0}}};
    styled.styles.push_back(
        {.font = TextFont{TextFont::Family::monospaced, TextFont::Weight::bold, true, 14.5},
         .foreground = TextColor{TextColor::Base::systemGreen, 1},
         .background = TextColor{TextColor::Base::white, 0.08},
         .paragraph = ParagraphStyle{1, 2.5, -3, 4, 5, ParagraphStyle::Alignment::center},
         .strikethrough = 1});
    EXPECT_EQ(jsonText(styled, 1), R"({
  "text": "ab",
  "wordCount": 1,
  "runs": [
    {
      "start": 0,
      "length": 2,
      "font": {
        "family": "monospaced",
        "size": 14.5,
        "weight": "bold",
        "italic": true
      },
      "foreground": {
        "color": "systemGreen",
        "alpha": 1
      },
      "background": {
        "color": "white",
        "alpha": 0.08
      },
      "strikethrough": 1,
      "paragraph": {
        "firstLineHeadIndent": 1,
        "headIndent": 2.5,
        "tailIndent": -3,
        "spacingBefore": 4,
        "spacingAfter": 5,
        "alignment": "center"
      }
    }
  ]
}
)");
}

TEST(JsonRendering, LeavesAbsentAttributesOut) {
    const Json json = jsonOf(u"a\nb");
    EXPECT_EQ(json["runs"][1].dump(), R"({"start":1,"length":1})");
    EXPECT_EQ(json["runs"][0].dump(),
              R"({"start":0,"length":1,"font":{"family":"system","size":16,"weight":"medium",)"
              R"("italic":false},"foreground":{"color":"text","alpha":1}})");
}

TEST(JsonRendering, CountsOffsetsInUtf16Units) {
    const Json json = jsonOf(u"👋 **b** c");
    EXPECT_EQ(json["text"], "👋 b c");
    ASSERT_EQ(json["runs"].size(), 3U);
    EXPECT_EQ(json["runs"][1]["start"], 3);
    EXPECT_EQ(json["runs"][1]["font"]["weight"], "bold");
    EXPECT_EQ(json["runs"][2]["start"], 4);
}

TEST(JsonRendering, CoversALongTextWithoutGaps) {
    const QString markdown = u"*a* b\n- [x] `c`\n"_s.repeated(5000);
    const Json json = jsonOf(markdown);
    qsizetype end = 0;
    for (const Json& run : json["runs"]) {
        ASSERT_EQ(run["start"].get<qsizetype>(), end);
        end += run["length"].get<qsizetype>();
    }
    EXPECT_EQ(end, MarkdownRenderer(16).render(markdown).text.size());
}

TEST(JsonRendering, IsValidForLoneSurrogates) {
    const QByteArray text = jsonText(MarkdownRenderer(16).render(QString(QChar(0xDC00))));
    EXPECT_TRUE(text.startsWith("{\n  \"text\": \"\\udc00\","));
}

class FullSink : public ByteSink {
public:
    bool write(QByteArrayView) override {
        ++calls;
        return false;
    }
    int calls = 0;
};

TEST(JsonRendering, StopsWhenTheSinkFails) {
    FullSink sink;
    EXPECT_FALSE(writeJson(MarkdownRenderer(16).render(u"*a* b\n"_s.repeated(5000)), 0, sink));
    EXPECT_EQ(sink.calls, 1);
}

} // namespace
} // namespace tessaline

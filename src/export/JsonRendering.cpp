#include "export/JsonRendering.h"

#include "export/ByteSink.h"
#include "settings/JsonWriter.h"

#include <vector>

namespace tessaline {

namespace {

/// A run's members lie in the run, in the array of runs, in the document.
constexpr int runDepth = 3;

QStringView nameOf(TextColor::Base base) {
    switch (base) {
    case TextColor::Base::text:
        return u"text";
    case TextColor::Base::systemGreen:
        return u"systemGreen";
    case TextColor::Base::white:
        return u"white";
    }
    Q_UNREACHABLE();
}

QStringView nameOf(TextFont::Weight weight) {
    switch (weight) {
    case TextFont::Weight::regular:
        return u"regular";
    case TextFont::Weight::medium:
        return u"medium";
    case TextFont::Weight::bold:
        return u"bold";
    }
    Q_UNREACHABLE();
}

void writeFont(JsonWriter& json, const TextFont& font) {
    const bool isSystem = font.family == TextFont::Family::system;
    json.key("font");
    json.beginObject();
    json.key("family");
    json.string(isSystem ? u"system" : u"monospaced");
    json.key("size");
    json.number(font.size);
    json.key("weight");
    json.string(nameOf(font.weight));
    json.key("italic");
    json.boolean(font.italic);
    json.endObject();
}

void writeColor(JsonWriter& json, QByteArrayView key, const TextColor& color) {
    json.key(key);
    json.beginObject();
    json.key("color");
    json.string(nameOf(color.base));
    json.key("alpha");
    json.number(color.alpha);
    json.endObject();
}

void writeParagraph(JsonWriter& json, const ParagraphStyle& style) {
    const auto member = [&](QByteArrayView key, double points) {
        json.key(key);
        json.number(points);
    };
    json.key("paragraph");
    json.beginObject();
    member("firstLineHeadIndent", style.firstLineHeadIndent);
    member("headIndent", style.headIndent);
    member("tailIndent", style.tailIndent);
    member("spacingBefore", style.spacingBefore);
    member("spacingAfter", style.spacingAfter);
    json.key("alignment");
    json.string(style.alignment == ParagraphStyle::Alignment::center ? u"center" : u"natural");
    json.endObject();
}

/// The members that all runs of a style share.
QByteArray membersOf(const TextAttributes& attributes) {
    QByteArray out;
    JsonWriter json = JsonWriter::inside(out, runDepth, false);
    if (attributes.font) writeFont(json, *attributes.font);
    if (attributes.foreground) writeColor(json, "foreground", *attributes.foreground);
    if (attributes.background) writeColor(json, "background", *attributes.background);
    if (attributes.strikethrough != 0) {
        json.key("strikethrough");
        json.number(attributes.strikethrough);
    }
    if (attributes.paragraph) writeParagraph(json, *attributes.paragraph);
    return out;
}

} // namespace

bool writeJson(const StyledText& styled, qsizetype wordCount, ByteSink& sink) {
    std::vector<QByteArray> members;
    for (const TextAttributes& attributes : styled.styles)
        members.push_back(membersOf(attributes));

    QByteArray out;
    JsonWriter json(out);
    json.beginObject();
    json.key("text");
    json.exactString(styled.text);
    json.key("wordCount");
    json.number(double(wordCount));
    json.key("runs");
    json.beginArray();
    for (const StyledText::Run& run : styled.runs) {
        json.beginObject();
        json.key("start");
        json.number(double(run.start));
        json.key("length");
        json.number(double(run.length));
        json.members(members[std::size_t(run.style)]);
        json.endObject();
        if (out.size() < ByteSink::pieceSize) continue;
        if (!sink.write(out)) return false;
        out.resize(0); // unlike clear(), keeps the memory
    }
    json.endArray();
    json.endObject();
    return sink.write(out);
}

} // namespace tessaline

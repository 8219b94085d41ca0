#include "SampleTalk.h"

#include <QStringView>

#include <array>
#include <utility>

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr std::array vocabulary{
    u"the",      u"a",       u"of",      u"and",     u"to",        u"in",        u"is",
    u"that",     u"we",      u"it",      u"for",     u"was",       u"on",        u"with",
    u"as",       u"you",     u"this",    u"from",    u"our",       u"they",      u"not",
    u"have",     u"are",     u"what",    u"when",    u"there",     u"one",       u"all",
    u"people",   u"time",    u"stage",   u"story",   u"question",  u"answer",    u"light",
    u"camera",   u"speaker", u"reader",  u"listen",  u"voice",     u"moment",    u"idea",
    u"because",  u"between", u"another", u"believe", u"remember",  u"yesterday", u"tomorrow",
    u"engineer", u"machine", u"measure", u"careful", u"evidence",  u"practice",  u"attention",
    u"don't",    u"it's",    u"café",    u"naïve",   u"long-term", u"1984",      u"responsibility"};

constexpr std::array markers{u"**", u"*", u"_", u"`", u"~~", u"__"};

} // namespace

SampleTalk::SampleTalk(std::uint32_t seed) : generator(seed) {}

QString SampleTalk::write(qsizetype words) {
    text.clear();
    written = 0;
    text += u"# "_s;
    phrase(5);
    text += u"\n\n"_s;
    while (written < words) {
        section();
    }
    return std::exchange(text, {});
}

void SampleTalk::section() {
    switch (below(16)) {
    case 0:
        text += QString(static_cast<qsizetype>(2 + below(3)), u'#') + u' ';
        phrase(4);
        text += u'\n';
        break;
    case 1:
    case 2:
        list(u"- ");
        break;
    case 3:
        numberedList();
        break;
    case 4:
        list(u"- [ ] ");
        break;
    case 5:
        quote();
        break;
    case 6:
        listing();
        break;
    default:
        paragraph();
    }
    text += u'\n';
    if (oneIn(40)) text += u"---\n\n"_s;
}

void SampleTalk::paragraph() {
    const std::uint32_t sentences = 2 + below(6);
    for (std::uint32_t i = 0; i < sentences; ++i) {
        if (i > 0) text += u' ';
        sentence();
    }
    text += u'\n';
}

void SampleTalk::list(QStringView marker) {
    const std::uint32_t items = 3 + below(4);
    for (std::uint32_t i = 0; i < items; ++i) {
        if (i > 0 && oneIn(4)) text += u"    "_s;
        text += marker;
        if (marker.contains(u'[') && oneIn(2)) text[text.size() - 3] = u'x';
        phrase(static_cast<int>(3 + below(8)));
        text += u'\n';
    }
}

void SampleTalk::numberedList() {
    const std::uint32_t items = 2 + below(5);
    for (std::uint32_t i = 0; i < items; ++i) {
        text += QString::number(i + 1) + u". "_s;
        phrase(static_cast<int>(4 + below(8)));
        text += u'\n';
    }
}

void SampleTalk::quote() {
    text += u"> "_s;
    sentence();
    text += u'\n';
}

void SampleTalk::listing() {
    text += u"```\n"_s;
    const std::uint32_t lines = 2 + below(5);
    for (std::uint32_t i = 0; i < lines; ++i) {
        text += u"    "_s;
        text += word();
        text += u" = "_s;
        text += word();
        text += u"(); // "_s;
        text += word();
        text += u'\n';
        written += 3;
    }
    text += u"```\n"_s;
}

void SampleTalk::sentence() {
    phrase(static_cast<int>(6 + below(14)));
    text += oneIn(8) ? u'?' : u'.';
}

void SampleTalk::phrase(int words) {
    for (int i = 0; i < words; ++i) {
        if (i > 0) text += oneIn(12) ? u", "_s : u" "_s;
        if (oneIn(25)) {
            emphasis();
        } else if (oneIn(120)) {
            link();
        } else {
            text += word();
        }
    }
    written += words;
}

void SampleTalk::emphasis() {
    const QStringView marker = markers[below(markers.size())];
    text += marker;
    text += word();
    if (oneIn(2)) {
        text += u' ';
        text += word();
        ++written;
    }
    text += marker;
}

void SampleTalk::link() {
    text += u'[';
    text += word();
    text += u"](notes/"_s;
    text += word();
    text += u".md)"_s;
}

QStringView SampleTalk::word() {
    return vocabulary[below(vocabulary.size())];
}

} // namespace tessaline

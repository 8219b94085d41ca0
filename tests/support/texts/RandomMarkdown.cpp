#include "support/texts/RandomMarkdown.h"

#include <QStringView>

#include <array>
#include <iterator>
#include <span>

namespace tessaline {

namespace {

using Tokens = std::span<const QStringView>;

constexpr QStringView emphasis[] = {u"*", u"*", u"_", u"_", u"**", u"__",  u"~", u"~~", u"`",  u"a",
                                    u"b", u" ", u"c", u"`", u"a",  u"***", u"a", u"\r", u"___"};
constexpr QStringView blocks[] = {
    u"-",    u"*",   u"+",   u"#",      u"##", u">",      u"[ ]",    u"[x]",    u"[X]",
    u"[",    u"]",   u"1",   u"23",     u".",  u" ",      u" ",      u" ",      u"\t",
    u"\t\t", u"---", u"***", u"___",    u"a",  u"- [ ] ", u"- [x] ", u"1. ",    u"> ",
    u"- ",   u"# ",  u"x",   u"######", u"\r", u"\u00a0", u"\u2028", u"\u0661", u"\u0085"};
constexpr QStringView links[] = {u"[",      u"]",       u"(",   u")",  u"!",    u"](",
                                 u"![",     u"a",       u"b c", u" ",  u"[a](", u"b)",
                                 u"[a](b)", u"![a](b)", u"*",   u"_",  u"`",    u"![]",
                                 u"[]",     u"()",      u"\r",  u"- ", u"1. ",  u"- [x](y) "};
constexpr QStringView exotic[] = {u"\t",         u"\v",         u"\f",         u"\r",
                                  u"\u0085",     u"\u2028",     u"\u2029",     u"\u00a0",
                                  u"\u1680",     u"\u2003",     u"\u200b",     u"\u202f",
                                  u"\u205f",     u"\u3000",     u"\u180e",     u"\ufeff",
                                  u"\u001c",     u"\u001f",     u"\u0661",     u"\u0967",
                                  u"\uff11",     u"\u00b2",     u"\u2160",     u"\u0301",
                                  u"\U0001d7ce", u"\U0001d7ff", u"\U0001f600", u"\U0001f468\u200d",
                                  u"\xd800",     u"\xdc00",     u"\xd835",     u"\xdfce",
                                  u"*",          u"_",          u"`",          u"~~",
                                  u"-",          u"1",          u".",          u"#",
                                  u" ",          u"a",          u"**",         u"- ",
                                  u"1. ",        u"[ ] ",       u">",          u"\u0338",
                                  u"---",        u"\u0000",     u"\u2000",     u"\u200a",
                                  u"\u2007"};

constexpr Tokens profiles[] = {emphasis, blocks, links, exotic};

constexpr QStringView fences[] = {u"```", u"  ```cpp", u"\u00a0```", u"````", u"``", u"\v```"};

} // namespace

RandomMarkdown::RandomMarkdown(std::uint32_t seed) : generator(seed) {}

QString RandomMarkdown::line() {
    constexpr std::array<std::size_t, 8> lengthClasses{4, 8, 8, 12, 12, 20, 40, 150};
    const std::size_t tokens = below(lengthClasses[below(lengthClasses.size())] + 1);
    const bool mixed = below(3) == 0;
    std::size_t profile = below(std::size(profiles));
    QString line;
    for (std::size_t i = 0; i < tokens; ++i) {
        if (mixed) profile = below(std::size(profiles));
        const Tokens choice = profiles[profile];
        line += choice[below(choice.size())];
    }
    return line.remove(u'\n');
}

QString RandomMarkdown::document() {
    const std::size_t lines = below(12) + 1;
    QString document;
    for (std::size_t i = 0; i < lines; ++i) {
        if (i > 0) document += u'\n';
        const std::size_t kind = below(6);
        if (kind == 0) document += fences[below(std::size(fences))];
        if (kind > 1) document += line();
    }
    return document;
}

std::size_t RandomMarkdown::below(std::size_t bound) {
    return generator() % bound;
}

} // namespace tessaline

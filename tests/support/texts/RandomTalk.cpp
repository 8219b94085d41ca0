#include "support/texts/RandomTalk.h"

#include <random>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class Talk {
public:
    explicit Talk(std::uint32_t seed) : generator(seed) {}

    QString make(int words) {
        QString text;
        while (spoken < words)
            text += part();
        return text;
    }

private:
    int between(int least, int most) {
        return least + int(generator() % std::uint32_t(most - least + 1));
    }

    QString words(int count) {
        spoken += count;
        QString text;
        for (int i = 0; i < count; ++i) {
            if (i > 0) text += u' ';
            for (int letters = between(1, 6) + between(0, 5); letters > 0; --letters)
                text += QChar(u'a' + between(0, 25));
        }
        return text;
    }

    QString part() {
        switch (between(0, 7)) {
        case 0:
            return "## "_L1 + words(between(1, 6)) + "\n\n"_L1;
        case 1:
            return list();
        case 2:
            return words(between(1, 3)) + "\n\n"_L1;
        case 3:
            return words(between(80, 200)) + "\n\n"_L1;
        case 4:
            return u"> %1\n\n[a pause, and a look at the clock]\n\n"_s.arg(words(between(5, 25)));
        case 5:
            return u"%1\n\n---\n\n"_s.arg(words(between(10, 30)));
        default:
            return words(between(10, 80)) + "\n\n"_L1;
        }
    }

    QString list() {
        QString text;
        for (int items = between(2, 9); items > 0; --items)
            text += u"- %1\n"_s.arg(words(between(1, 8)));
        return text + u'\n';
    }

    std::mt19937 generator;
    int spoken = 0;
};

} // namespace

QString randomTalk(std::uint32_t seed, int words) {
    return Talk(seed).make(words);
}

} // namespace tessaline

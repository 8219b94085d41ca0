#include "support/CaseName.h"

namespace tessaline {

namespace {

constexpr std::size_t longest = 60;

struct Spelling {
    char16_t sign;
    const char* name;
};

// clang-format off
constexpr Spelling spellings[] = {
    {u'\n', "Newline"}, {u'\r', "Return"}, {u'\t', "Tab"}, {u'!', "Bang"},
    {u'"', "Quote"}, {u'#', "Hash"}, {u'%', "Percent"}, {u'&', "And"},
    {u'\'', "Tick"}, {u'(', "Open"}, {u')', "Close"}, {u'*', "Star"},
    {u'+', "Plus"}, {u',', "Comma"}, {u'-', "Minus"}, {u'.', "Dot"},
    {u'/', "Slash"}, {u':', "Colon"}, {u';', "Semicolon"}, {u'<', "Less"},
    {u'=', "Equals"}, {u'>', "Greater"}, {u'?', "Query"}, {u'@', "At"},
    {u'[', "Left"}, {u'\\', "Backslash"}, {u']', "Right"}, {u'`', "Backquote"},
    {u'{', "Begin"}, {u'|', "Bar"}, {u'}', "End"}, {u'~', "Tilde"},
};
// clang-format on

std::string spelled(QChar character) {
    for (const Spelling& spelling : spellings) {
        if (character == spelling.sign) return spelling.name;
    }
    return (QLatin1Char('U') + QString::number(character.unicode(), 16).toUpper()).toStdString();
}

bool isPlain(QChar character) {
    return character.unicode() < 0x80 && character.isLetterOrNumber();
}

} // namespace

std::string nameOfText(const QString& text) {
    std::string name;
    for (const QChar character : text) {
        if (name.size() >= longest) break;
        if (character == QLatin1Char(' ') || character == QLatin1Char('_')) {
            name += '_';
        } else {
            name += isPlain(character) ? std::string(1, character.toLatin1()) : spelled(character);
        }
    }
    return name.empty() ? "Empty" : name;
}

std::string nameOfBytes(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    return nameOfText(text.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(bytes)
                                                                 : text);
}

std::string nameOfItsOwn(const std::string& name, std::size_t index,
                         std::set<std::string>& earlier) {
    if (index == 0) earlier.clear();
    std::string own = name.empty() ? "Case_" + std::to_string(index + 1) : name;
    while (!earlier.insert(own).second)
        own = name + "_" + std::to_string(index + 1);
    return own;
}

} // namespace tessaline

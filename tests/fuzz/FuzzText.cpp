#include "FuzzText.h"

#include <iterator>

namespace tessaline {

namespace {

constexpr char16_t table[] = {0x0085, 0x2028, 0x2029, 0x00a0, 0x1680, 0x2003, 0x200b, 0x202f,
                              0x205f, 0x3000, 0x180e, 0xfeff, 0x0661, 0x0967, 0xff11, 0x00b2,
                              0x0301, 0x0338, 0xd835, 0xdfce, 0xd83d, 0xde00, 0xd800, 0xdfff};

} // namespace

QString fuzzText(const std::uint8_t* data, std::size_t size) {
    QString text;
    for (std::size_t i = 0; i < size; ++i) {
        if (data[i] < 0x80) {
            text += QChar(static_cast<char16_t>(data[i]));
        } else if (data[i] == 0xff && i + 2 < size) {
            text += QChar(static_cast<char16_t>(data[i + 1] << 8 | data[i + 2]));
            i += 2;
        } else {
            text += QChar(table[(data[i] - 0x80) % std::size(table)]);
        }
    }
    return text;
}

} // namespace tessaline

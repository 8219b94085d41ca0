#include "support/texts/EscapedText.h"

#include <array>
#include <cstdio>

namespace tessaline {

std::string escapedText(QStringView text) {
    std::string escaped;
    for (const QChar unit : text) {
        const char16_t code = unit.unicode();
        if (code >= u' ' && code <= u'~' && code != u'\\') {
            escaped += static_cast<char>(code);
            continue;
        }
        std::array<char, 8> buffer{};
        std::snprintf(buffer.data(), buffer.size(), "\\u%04x", static_cast<unsigned>(code));
        escaped += buffer.data();
    }
    return escaped;
}

} // namespace tessaline

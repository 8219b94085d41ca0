#include "FuzzFailure.h"

#include "support/texts/EscapedText.h"

#include <cstdio>
#include <cstdlib>

namespace tessaline {

void reportFuzzFailure(const char* what, QStringView text) {
    std::fprintf(stderr, "%s: \"%s\"\n", what, escapedText(text).c_str());
    std::abort();
}

} // namespace tessaline

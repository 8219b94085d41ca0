#include "settings/PrintedLine.h"

#include <cstdio>

namespace tessaline {

void printLine(const QString& line) {
    std::fputs((line + u'\n').toUtf8().constData(), stdout);
    std::fflush(stdout);
}

} // namespace tessaline

// Does one thing that changes files of the user's, for the tests to make it fail half-way.

#include "settings/AppSettings.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>

extern "C" {
// Defined by the preloaded library, if there is one.
void armFaults() __attribute__((weak));
void disarmFaults() __attribute__((weak));
}

namespace {

using namespace tessaline;
using namespace Qt::Literals::StringLiterals;

/// While it lives, calls may fail.
struct Armed {
    Armed() {
        if (armFaults) armFaults();
    }
    ~Armed() {
        if (disarmFaults) disarmFaults();
    }
};

int saveSettings(const QString& path) {
    AppSettings settings(path);
    settings.fontSize = 22;
    settings.notePath = u"x"_s.repeated(20000);
    const Armed armed;
    settings.save();
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == u"save"_s) return saveSettings(arguments[2]);
    std::fputs("usage: fault_driver save FILE\n", stderr);
    return 2;
}

#include "cli/Console.h"

#include "cli/DescriptorSink.h"
#include "cli/ExitStatus.h"

#include <csignal>
#include <unistd.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

void reportError(const QString& message) {
    QString line = "tessaline: "_L1 + message;
    for (QChar& c : line) {
        if (c.category() == QChar::Other_Control) c = u'?';
    }
    DescriptorSink(STDERR_FILENO).write((line + u'\n').toLocal8Bit());
}

int reportFailure(const QString& reason) {
    reportError(reason);
    return ExitStatus::failure;
}

int printText(const QString& text) {
    std::signal(SIGPIPE, SIG_IGN);
    DescriptorSink output(STDOUT_FILENO);
    if (output.write(text.toLocal8Bit())) return ExitStatus::success;
    return reportOutputFailure(output.error());
}

int reportOutputFailure(const QString& reason) {
    return reportFailure(u"cannot write standard output: %1"_s.arg(reason));
}

} // namespace tessaline
